#include <fl/i18n/lc_data_exceptions.hpp>

#include <cstdio>
#include <utility>

namespace fl::i18n::lcmgmt {
namespace {

/// Printable ASCII as it is, any other byte in hexadecimal: a path may be in any encoding.
std::string printable(std::string_view path) {
    std::string text;
    for (char const c : path) {
        auto const byte = static_cast<unsigned char>(c);
        char hexadecimal[3];
        if (byte >= 32 && byte <= 126)
            text += c;
        else if (std::snprintf(hexadecimal, sizeof hexadecimal, "%X", static_cast<unsigned>(byte)) > 0)
            text += hexadecimal;
    }
    return text;
}

std::string place_of_error(int error, std::uint64_t column, std::uint64_t line) {
    return "XML Parse error detected with " + std::to_string(error) + " at column, " +
           std::to_string(column) + ", on line, " + std::to_string(line) + " in resource file.";
}

} // namespace

LcRscExceptionBase::LcRscExceptionBase(std::string error_id, std::int32_t code, std::string message)
    : id_(std::move(error_id)),
      code_(code),
      message_(std::move(message)) {}

char const* LcRscExceptionBase::what() const noexcept {
    return id_.c_str();
}

void LcRscExceptionBase::anchor() const {}

LcRscOpenFileFailure::LcRscOpenFileFailure(std::string_view path)
    : LcRscExceptionBase("fl:i18n:LcRscOpenFileFailure", 2, "Failed to open file " + printable(path) + ".") {}

void LcRscOpenFileFailure::anchor() const {}

LcRscFileReadFailure::LcRscFileReadFailure(std::string_view path)
    : LcRscExceptionBase("fl:i18n:LcRscFileReadFailure", 3, "Failed to read file " + printable(path) + ".") {}

void LcRscFileReadFailure::anchor() const {}

LcRscParserCreationFailure::LcRscParserCreationFailure()
    : LcRscExceptionBase("fl:i18n:LcRscParserCreationFailure", 4, "Failed to create XML parser.") {}

void LcRscParserCreationFailure::anchor() const {}

LcRscInvalidXmlDoc::LcRscInvalidXmlDoc(int error, std::uint64_t column, std::uint64_t line)
    : LcRscExceptionBase("fl:i18n:LcRscInvalidXmlDoc", 5, place_of_error(error, column, line)) {}

void LcRscInvalidXmlDoc::anchor() const {}

} // namespace fl::i18n::lcmgmt
