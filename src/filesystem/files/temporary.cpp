#include "filesystem/files/temporary_steps.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/filesystem/temporary.hpp>

#include <boost/filesystem/operations.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <cerrno>
#include <exception>
#include <string_view>

namespace fl::filesystem {
namespace {

constexpr int most_tries = 11;

/// directory "/" prefix token ["."] suffix
ustring named(ustring const& dir, ustring const& prefix, std::string_view token, ustring const& suffix) {
    if (token.empty())
        return {};
    ustring name = detail::make_native_form(dir);
    if (!name.ends_with(upath_constant::PATHNAME_SEPARATOR))
        name += upath_constant::PATHNAME_SEPARATOR;
    name += prefix;
    name.append(token.begin(), token.end());
    if (!suffix.empty() && suffix.front() != u'.')
        name += u'.';
    return name += suffix;
}

std::FILE* no_file(ustring& out_name) noexcept {
    out_name.clear();
    errno = 0;
    return nullptr;
}

} // namespace

std::string detail::grouped_digits() {
    return boost::filesystem::unique_path("%%%%-%%%%-%%%%-%%%%").string();
}

std::string detail::random_uuid() {
    return boost::uuids::to_string(boost::uuids::random_generator()());
}

std::string detail::random_token(std::string (*source)(), std::string (*second_source)()) {
    for (auto const draw : {source, second_source}) {
        try {
            return draw();
        } catch (std::exception const&) {
            // No entropy, or no way to it: a sandbox may close one and not the other.
        }
    }
    return {};
}

std::FILE* detail::open_temporary(ustring& out_name, ustring const& dir, ustring const& prefix,
                                  ustring const& suffix, token_source const& tokens) {
    for (int tries = 0; tries < most_tries; ++tries) {
        ustring name = make_native_form(named(dir, prefix, tokens(), suffix));
        if (name.empty())
            break;
        if (std::FILE* const file = fopen(name, "wb+x")) {
            out_name = std::move(name);
            return file;
        }
    }
    return no_file(out_name);
}

ustring tmpfile_name(ustring const& dir, ustring const& prefix, ustring const& suffix) {
    return named(dir, prefix, detail::random_token(), suffix);
}

ustring tmpnam(ustring const& dir, ustring const& prefix, ustring const& suffix) {
    return tmpfile_name(dir.empty() ? temp_directory_name() : dir, prefix, suffix);
}

std::FILE* tmpfile(ustring& out_name, ustring const& dir, ustring const& prefix, ustring const& suffix) {
    try {
        return detail::open_temporary(out_name, dir.empty() ? temp_directory_name() : dir, prefix, suffix,
                                      [] { return detail::random_token(); });
    } catch (FsysExceptionBase const&) { // no directory
        return no_file(out_name);
    }
}

} // namespace fl::filesystem
