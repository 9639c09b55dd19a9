#include "filesystem/directory/directory_entry_context.hpp"

#include "filesystem/files/volume_rules.hpp"
#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/name_conversion.hpp"
#include "platform/platform.hpp"
#include "support/ascii.hpp"

#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/path.hpp>

#include <cerrno>

namespace fl::filesystem {
namespace {

/// Puts the text of a name in the place of another. Nearly all names are ASCII: those are widened into the
/// memory that is there.
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

} // namespace

directory_entry_context::~directory_entry_context() {
    directory_->handle.reset(); // entries may still share the rest
}

directory_entry_context::directory_entry_context(ustring const& directory) {
    std::string path = detail::make_native_access_form(absolute(directory, u""), 1);
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
    dirent const* const entry = ::readdir(directory_->handle.get());
    if (entry != nullptr) {
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

} // namespace fl::filesystem
