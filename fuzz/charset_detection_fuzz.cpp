// Any bytes get an encoding: the system's, or one that ICU has a converter for; UTF-8, and ASCII, get
// "UTF-8".

#include "fuzz.hpp"

#include <fl/i18n/charset_detection.hpp>
#include <fl/i18n/locale.hpp>

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <sstream>
#include <string>

namespace {

using namespace fl::i18n;

/// By the system's locale, or by ICU's converters.
bool is_known(std::string const& encoding) {
    if (encoding == QnLocale::system().localeSpecificEncoding())
        return true;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_close(ucnv_open(encoding.c_str(), &status));
    return !encoding.empty() && U_SUCCESS(status);
}

bool is_utf8(char const* bytes, std::size_t size) {
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &length, bytes, static_cast<std::int32_t>(size), &status);
    return status != U_INVALID_CHAR_FOUND;
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    char const* const bytes = reinterpret_cast<char const*>(data);
    std::ostringstream diagnostics;
    std::string const answer = detect_charset(bytes, size, diagnostics, u"input");
    require(is_known(answer));
    bool const may_be_utf16 = size >= 2 && data[0] == 0;
    require(may_be_utf16 || !is_utf8(bytes, size) || answer == "UTF-8");
    require(diagnostics.str().empty());
    return 0;
}
