#include "filesystem/primitives/name_conversion.hpp"

namespace fl::filesystem::detail {
namespace {

constexpr std::size_t too_large_to_convert = std::size_t{1} << 30;

[[noreturn]] void throw_by_status(UErrorCode status, ustring const& name) {
    if (status == U_INVALID_CHAR_FOUND || status == U_ILLEGAL_CHAR_FOUND)
        support::raise(CvtInvalidCharacter(name));
    support::raise(FileNameConversionFailure(name));
}

} // namespace

ustring widened(std::string_view name) {
    ustring result(name.size(), u'\0');
    for (std::size_t i = 0; i < name.size(); ++i)
        result[i] = static_cast<unsigned char>(name[i]);
    return result;
}

void throw_conversion_failure(UErrorCode status, std::u16string_view name) {
    if (name.size() >= too_large_to_convert)
        throw_name_too_large();
    throw_by_status(status, ustring(name));
}

void throw_conversion_failure(UErrorCode status, std::string_view name) {
    if (name.size() >= too_large_to_convert)
        throw_name_too_large();
    throw_by_status(status, widened(name));
}

} // namespace fl::filesystem::detail
