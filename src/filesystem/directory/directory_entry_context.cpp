#include "filesystem/directory/directory_entry_context.hpp"

#include "filesystem/files/volume_rules.hpp"
#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/name_conversion.hpp"
#include "platform/platform.hpp"
#include "support/ascii.hpp"
#include "support/raise.hpp"
#include "text/matching/match_limit.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/path.hpp>

#include <cerrno>

namespace fl::filesystem {
namespace {

/// Puts the text of a name in the place of another. Nearly all names are ASCII: those are widened into the
/// memory that is there, so that a walk allocates nothing for them.
void assign_text(ustring& text, std::string_view name) {
    text.resize(name.size());
    unsigned char bits = 0;
    for (std::size_t i = 0; i < name.size(); ++i) {
        auto const byte = static_cast<unsigned char>(name[i]);
        bits |= byte;
        text[i] = byte;
    }
    if (bits >= 0x80)
        text = detail::name_from_utf8(name, support::replacement_character);
}

/// For one name, in ICU's steps: some milliseconds. Ordinary matches take less than one step.
constexpr std::int32_t time_limit = 20;

bool accepts_bad_pattern(initialization_mode mode) noexcept {
    auto const bit = static_cast<std::uint32_t>(initialization_mode::accept_bad_pattern);
    return (static_cast<std::uint32_t>(mode) & bit) != 0;
}

} // namespace

directory_entry_context::~directory_entry_context() {
    directory_->handle.reset(); // entries may still share the rest
}

directory_entry_context::directory_entry_context(ustring const& directory) {
    std::string path = detail::make_native_access_form(absolute(directory, u""));
    detail::directory_handle handle = detail::open_by_path(path);
    opening_error_ = handle ? 0 : errno;
    directory_ = std::make_shared<detail::open_directory>(
        std::make_shared<detail::directory_node>(std::move(path)), std::move(handle));
    if (!is_open())
        return;
    std::uint32_t flags = 0;
    opening_error_ = platform::current().volume_flags(directory_->node->path(), flags);
    mask_ = detail::rules_of(flags).mask();
}

directory_entry_context::directory_entry_context(std::shared_ptr<detail::open_directory> directory) noexcept
    : directory_(std::move(directory)) {}

bool directory_entry_context::read_raw() {
    if (!is_open())
        return false;
    errno = 0;
    if (dirent const* const entry = ::readdir(directory_->handle.get())) {
        raw_name_ = entry->d_name;
        type_ = entry->d_type;
        return true;
    }
    int const error = errno;
    raw_name_ = {}; // lies in the handle's memory
    name_.clear();
    directory_->handle.reset();
    if (error != 0)
        detail::throw_errno(error, directory_->node->path());
    return false;
}

void directory_entry_context::convert_name() {
    assign_text(name_, raw_name_);
}

bool directory_entry_without_wc_support_context::step() {
    if (!read_raw())
        return false;
    convert_name();
    return true;
}

directory_entry_with_wc_support_context::directory_entry_with_wc_support_context(ustring const& directory,
                                                                                 ustring const& expression,
                                                                                 initialization_mode mode)
    : directory_entry_context(directory) {
    if (opening_error() != 0)
        return; // tells more than a bad expression
    std::optional<detail::wildcard> parsed = detail::wildcard::parse(expression);
    if (parsed && mask() == fl::i18n::character_handling_mode_context::default_mode)
        wildcard_ = std::move(parsed);
    else
        open_matcher(expression, parsed, mode);
}

void directory_entry_with_wc_support_context::open_matcher(ustring const& expression,
                                                           std::optional<detail::wildcard> const& parsed,
                                                           initialization_mode mode) {
    ustring const pattern = parsed ? parsed->bounded_expression() : expression;
    if (matcher_.open(pattern, mask()) == fl::i18n::regex_success)
        fl::i18n::detail::limit_match_time(matcher_, time_limit);
    else if (!accepts_bad_pattern(mode))
        support::raise(InvalidArgument("Pattern matching object can not be created"));
}

bool directory_entry_with_wc_support_context::matches() const {
    if (wildcard_)
        return wildcard_->matches(name());
    fl::i18n::regex_excp_id status = fl::i18n::regex_success;
    return matcher_.match(name(), status);
}

bool directory_entry_with_wc_support_context::step() {
    while (read_raw()) {
        convert_name();
        if (matches())
            return true;
    }
    return false;
}

} // namespace fl::filesystem
