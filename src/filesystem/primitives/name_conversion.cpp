#include "filesystem/primitives/name_conversion.hpp"

#include "support/ascii.hpp"

#include <fl/filesystem/path.hpp>

#include <unicode/ustring.h>

namespace fl::filesystem::detail {
namespace {

/// Where a conversion has failed, a name of this size failed for its size, whatever ICU says: it counts in 32
/// bits and is not exact about which limit it met first.
constexpr std::size_t too_large_to_convert = std::size_t{1} << 30;

[[noreturn]] void throw_by_status(UErrorCode status, ustring const& name) {
    if (status == U_INVALID_CHAR_FOUND || status == U_ILLEGAL_CHAR_FOUND)
        support::raise(CvtInvalidCharacter(name));
    support::raise(FileNameConversionFailure(name));
}

} // namespace

std::string name_to_utf8(std::u16string_view name, std::int32_t substitution) {
    return converted_name<char>(name, [substitution](char* dst, std::int32_t capacity, char16_t const* src,
                                                     std::int32_t length, UErrorCode* status) {
        std::int32_t size = 0;
        u_strToUTF8WithSub(dst, capacity, &size, src, length, substitution, nullptr, status);
        return size;
    });
}

ustring name_from_utf8(std::string_view name, std::int32_t substitution) {
    return converted_name<char16_t>(name, [substitution](char16_t* dst, std::int32_t capacity,
                                                         char const* src, std::int32_t length,
                                                         UErrorCode* status) {
        std::int32_t size = 0;
        u_strFromUTF8WithSub(dst, capacity, &size, src, length, substitution, nullptr, status);
        return size;
    });
}

ustring shown(std::string_view name) {
    try {
        return from_filesystem(name);
    } catch (FsysExceptionBase const&) {
        return support::widened(name);
    }
}

void throw_conversion_failure(UErrorCode status, std::u16string_view name) {
    if (name.size() >= too_large_to_convert)
        throw_name_too_large();
    throw_by_status(status, ustring(name));
}

void throw_conversion_failure(UErrorCode status, std::string_view name) {
    if (name.size() >= too_large_to_convert)
        throw_name_too_large();
    throw_by_status(status, support::widened(name));
}

} // namespace fl::filesystem::detail
