#include "filesystem/directory/directory_entry_context.hpp"
#include "filesystem/primitives/error_number.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/i18n/string_conversion.hpp>

namespace fl::filesystem::detail {
namespace {

void check_pattern(pattern_string_context const& pattern) {
    if (pattern.filename().empty() || pattern.expression().empty())
        support::raise(InvalidArgument("Empty file name or pattern string context"));
    if (pattern.filename().find(upath_constant::PATHNAME_SEPARATOR) != ustring::npos)
        support::raise(InvalidArgument("Found invalid character in the file name"));
}

std::unique_ptr<directory_entry_context> open(ustring const& path) {
    auto context = std::make_unique<directory_entry_without_wc_support_context>(path);
    if (context->opening_error() != 0)
        throw_errno(context->opening_error(), context->directory()->node->path());
    return context;
}

std::unique_ptr<directory_entry_context> open(ustring const& path, pattern_string_context const& pattern,
                                              initialization_mode mode) {
    check_pattern(pattern);
    auto context =
        std::make_unique<directory_entry_with_wc_support_context>(path, pattern.expression(), mode);
    if (context->opening_error() != 0)
        throw_errno(context->opening_error(),
                    context->directory()->node->path_of(fl::i18n::ustring_to_utf8(pattern.expression())));
    return context;
}

} // namespace

upath_directory_iterator_impl::upath_directory_iterator_impl(ustring const& path, initialization_mode,
                                                             bool keeps_dot_entries)
    : upath_directory_iterator_impl(open(path), keeps_dot_entries) {}

upath_directory_iterator_impl::upath_directory_iterator_impl(ustring const& path,
                                                             pattern_string_context const& pattern,
                                                             initialization_mode mode, bool keeps_dot_entries)
    : upath_directory_iterator_impl(open(path, pattern, mode), keeps_dot_entries) {}

upath_directory_iterator_impl::upath_directory_iterator_impl(std::unique_ptr<directory_entry_context> context,
                                                             bool keeps_dot_entries)
    : context_(std::move(context)),
      keeps_dot_entries_(keeps_dot_entries),
      entry_(std::make_shared<directory_entry_record>()) {
    entry_.record_->directory = context_->directory();
    increment();
}

upath_directory_iterator_impl::~upath_directory_iterator_impl() = default;

void upath_directory_iterator_impl::increment() {
    while (context_->step())
        if (keeps_dot_entries_ || !is_dot_entry(context_->name())) {
            fill_entry(context_.get());
            return;
        }
}

bool upath_directory_iterator_impl::is_open() const noexcept {
    return context_->is_open();
}

void upath_directory_iterator_impl::fill_entry(directory_entry_context const* context) {
    directory_entry_record& record = *entry_.record_;
    if (record.directory != context->directory()) // seldom; spares the counting of references
        record.directory = context->directory();
    record.name = context->raw_name();
    record.text = context->name();
    record.type = context->type();
}

} // namespace fl::filesystem::detail
