#include "filesystem/primitives/name_conversion.hpp"

#include "support/ascii.hpp"

#include <fl/filesystem/path.hpp>

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
