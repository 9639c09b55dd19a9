#include <fl/i18n/lc_data_exceptions.hpp>

#include <cstdio>
#include <utility>

namespace fl::i18n::lcmgmt {
namespace {

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
    : error_id_(std::move(error_id)),
      code_(code),
      message_(std::move(message)) {}

LcRscExceptionBase::~LcRscExceptionBase() = default;

char const* LcRscExceptionBase::what() const noexcept {
    return error_id_.c_str();
}

LcRscOpenFileFailure::LcRscOpenFileFailure(std::string_view path)
    : LcRscExceptionBase("fl:i18n:LcRscOpenFileFailure", 2, "Failed to open file " + printable(path) + ".") {}

LcRscOpenFileFailure::~LcRscOpenFileFailure() = default;

LcRscFileReadFailure::LcRscFileReadFailure(std::string_view path)
    : LcRscExceptionBase("fl:i18n:LcRscFileReadFailure", 3, "Failed to read file " + printable(path) + ".") {}

LcRscFileReadFailure::~LcRscFileReadFailure() = default;

LcRscParserCreationFailure::LcRscParserCreationFailure()
    : LcRscExceptionBase("fl:i18n:LcRscParserCreationFailure", 4, "Failed to create XML parser.") {}

LcRscParserCreationFailure::~LcRscParserCreationFailure() = default;

LcRscInvalidXmlDoc::LcRscInvalidXmlDoc(int error, std::uint64_t column, std::uint64_t line)
    : LcRscExceptionBase("fl:i18n:LcRscInvalidXmlDoc", 5, place_of_error(error, column, line)) {}

LcRscInvalidXmlDoc::~LcRscInvalidXmlDoc() = default;

} // namespace fl::i18n::lcmgmt
