#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/name_conversion.hpp"

#include <fl/filesystem/file.hpp>

#include <cerrno>

namespace fl::filesystem {
namespace {

using bytes_converter = fl::i18n::converter<char, char16_t>;

/// The `errno` value that refuses the arguments, or 0. The C library would read a text with a zero inside up
/// to there, and open another file.
int refusal(ustring const& name, std::string const& mode) noexcept {
    if (name.empty() || name.find(u'\0') != name.npos)
        return EINVAL;
    return mode.empty() || mode.find('\0') != mode.npos ? EINVAL : 0;
}

int refusal_of_text(ustring const& name, std::string const& mode) noexcept {
    int const error = refusal(name, mode);
    return error == 0 && name.back() == upath_constant::PATHNAME_SEPARATOR.front() ? EISDIR : error;
}

/// Opens what `encode()` gives, unless `error` or a failure of encoding forbids it.
template <class Encode, class Open>
std::FILE* open_encoded(int error, Encode const& encode, Open const& open) {
    errno = error;
    if (error != 0)
        return nullptr;
    std::string bytes;
    try {
        bytes = encode();
    } catch (...) {
        errno = detail::errno_of_current_exception();
        return nullptr;
    }
    if (bytes.find('\0') != bytes.npos) {
        errno = EINVAL;
        return nullptr;
    }
    errno = 0;
    return open(bytes.c_str());
}

std::string encode_built_in(ustring const& name) {
    return detail::name_to_utf8(name, detail::substitute_byte);
}

template <class Encode, class Open>
std::FILE* open_text(ustring const& name, std::string const& mode, Encode const& encode, Open const& open) {
    return open_encoded(
        refusal_of_text(name, mode), [&] { return encode(detail::make_native_form(name)); }, open);
}

template <class Encode, class Open>
std::FILE* open_path(upath const& path, std::string const& mode, Encode const& encode, Open const& open) {
    return open_encoded(
        refusal(path.string(), mode), [&] { return encode(path.string()); }, open);
}

auto encoder(bytes_converter const& to_bytes) {
    return [&to_bytes](ustring const& name) { return to_bytes.convert(name); };
}

auto opener(std::string const& mode) {
    return [&mode](char const* name) { return std::fopen(name, mode.c_str()); };
}

auto reopener(std::string const& mode, std::FILE* stream) {
    return [&mode, stream](char const* name) { return std::freopen(name, mode.c_str(), stream); };
}

std::FILE* refuse_null_stream() noexcept {
    errno = EINVAL;
    return nullptr;
}

} // namespace

std::FILE* fopen(ustring const& name, std::string const& mode) {
    return open_text(name, mode, encode_built_in, opener(mode));
}

std::FILE* fopen(upath const& path, std::string const& mode) {
    return open_path(path, mode, encode_built_in, opener(mode));
}

std::FILE* fopen(ustring const& name, std::string const& mode, bytes_converter const& to_bytes) {
    return open_text(name, mode, encoder(to_bytes), opener(mode));
}

std::FILE* fopen(upath const& path, std::string const& mode, bytes_converter const& to_bytes) {
    return open_path(path, mode, encoder(to_bytes), opener(mode));
}

std::FILE* freopen(ustring const& name, std::string const& mode, std::FILE* stream) {
    return stream ? open_text(name, mode, encode_built_in, reopener(mode, stream)) : refuse_null_stream();
}

std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream) {
    return stream ? open_path(path, mode, encode_built_in, reopener(mode, stream)) : refuse_null_stream();
}

std::FILE* freopen(ustring const& name, std::string const& mode, std::FILE* stream,
                   bytes_converter const& to_bytes) {
    return stream ? open_text(name, mode, encoder(to_bytes), reopener(mode, stream)) : refuse_null_stream();
}

std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream,
                   bytes_converter const& to_bytes) {
    return stream ? open_path(path, mode, encoder(to_bytes), reopener(mode, stream)) : refuse_null_stream();
}

} // namespace fl::filesystem
