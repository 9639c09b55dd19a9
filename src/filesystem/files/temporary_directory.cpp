// Where temporary files go: the directories that the environment names, and which of them will do.

#include "filesystem/files/temporary_steps.hpp"
#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/name_conversion.hpp"
#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/filesystem/temporary.hpp>
#include <fl/i18n/environment.hpp>

#include <cerrno>
#include <exception>
#include <string_view>
#include <unistd.h>

namespace fl::filesystem {
namespace {

/// Empty for a variable that is unset and for what can be no variable's name: of "A=b=c" in the environment,
/// getenv(3) takes "A=b" for a name.
ustring environment_value(std::string const& name) {
    bool const is_name = !name.empty() && name.find_first_of(std::string_view("=\0", 2)) == name.npos;
    return is_name ? fl::i18n::getenv(name) : ustring();
}

/// Throws what keeps temporary files out of a directory.
void require_usable(ustring const& directory) {
    auto const refuse = [&](int error) {
        detail::throw_errno(error, detail::name_to_utf8(directory, support::replacement_character));
    };
    std::uint32_t const kind = status(directory).kind();
    if (kind == file_status::file_not_found)
        refuse(ENOENT);
    if (kind != file_status::directory_file)
        refuse(ENOTDIR);
    if (::access(detail::to_filesystem(directory).c_str(), R_OK | W_OK) != 0)
        refuse(errno);
}

} // namespace

ustring detail::first_usable_directory(std::vector<ustring> const& candidates) {
    std::exception_ptr last;
    for (ustring const& candidate : candidates) {
        try {
            require_usable(candidate);
            return candidate;
        } catch (FsysExceptionBase const&) {
            last = std::current_exception();
        }
    }
    if (!last)
        support::raise(TempEnvNotSpecified());
    std::rethrow_exception(last);
}

ustring temp_dir_name(std::vector<std::string> const& names) {
    std::vector<std::string> variables = names;
    variables.insert(variables.end(), {"TMPDIR", "TMP", "TEMP"});
    std::vector<ustring> candidates;
    for (std::string const& variable : variables) {
        if (ustring value = environment_value(variable); !value.empty())
            candidates.push_back(std::move(value));
    }
    candidates.emplace_back(u"/tmp");
    return detail::first_usable_directory(candidates);
}

ustring temp_directory_name() {
    return temp_directory_name({});
}

ustring temp_directory_name(std::vector<std::string> const& names) {
    return detail::make_native_form(temp_dir_name(names));
}

} // namespace fl::filesystem
