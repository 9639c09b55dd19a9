#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/utf8_name.hpp"
#include "filesystem/temporary.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/filesystem/temporary.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <cerrno>
#include <cstdlib>
#include <exception>
#include <string_view>
#include <unistd.h>

namespace fl::filesystem {
namespace {

/// Empty for a variable that is unset and for what can be no variable's name: of "A=b=c" in the environment,
/// getenv(3) takes "A=b" for a name.
ustring environment_value(std::string const& name) {
    bool const is_name = name.find_first_of(std::string_view("=\0", 2)) == name.npos;
    char const* const value = is_name ? std::getenv(name.c_str()) : nullptr;
    return value != nullptr ? fl::i18n::utf8_to_ustring(value) : ustring();
}

/// What keeps temporary files out of a directory: the exception from looking at it or an `errno` value, or
/// neither.
struct obstacle {
    std::exception_ptr exception;
    int error = 0;

    explicit operator bool() const noexcept { return exception || error != 0; }
};

int access_error(ustring const& directory) {
    std::string const bytes = detail::pathname_traits<char16_t>::to_filesystem(directory);
    return ::access(bytes.c_str(), R_OK | W_OK) == 0 ? 0 : errno;
}

obstacle obstacle_in(ustring const& directory) {
    try {
        std::uint32_t const kind = status(directory).kind();
        if (kind == file_status::file_not_found)
            return {nullptr, ENOENT};
        return {nullptr, kind == file_status::directory_file ? access_error(directory) : ENOTDIR};
    } catch (FsysExceptionBase const&) {
        return {std::current_exception()};
    }
}

[[noreturn]] void throw_obstacle(obstacle const& found, ustring const& directory) {
    if (found.exception)
        std::rethrow_exception(found.exception);
    detail::throw_errno(found.error, detail::name_to_utf8(directory, detail::replacement_character));
}

} // namespace

ustring detail::first_usable_directory(std::vector<ustring> const& candidates) {
    obstacle last;
    for (ustring const& candidate : candidates) {
        last = obstacle_in(candidate);
        if (!last)
            return candidate;
    }
    if (!last)
        support::raise(TempEnvNotSpecified());
    throw_obstacle(last, candidates.back());
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
    return detail::make_native_form(temp_dir_name(names), 1);
}

} // namespace fl::filesystem
