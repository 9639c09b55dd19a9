// Limits on what a document may declare, and the reading of a stream in pieces that grow with their tokens.

#include "xml/expat_session.hpp"

#include <algorithm>
#include <istream>
#include <utility>
#include <vector>

namespace fl::xml {
namespace {

/// Of entities and attributes together. A chain of entities, each within the next, is expanded by recursion
/// and outgrows the stack long before it outgrows expat's limits. The attributes declared for an element are
/// searched through at each of its tags.
constexpr int most_declarations = 100;

constexpr std::size_t buffer_size = 1024;
constexpr std::size_t largest_buffer = std::size_t(1) << 30; // what one call of expat takes

extern "C" {

static void XMLCALL fl_i18n_entity_declaration(void* user_data, XML_Char const*, int, XML_Char const*, int,
                                               XML_Char const*, XML_Char const*, XML_Char const*,
                                               XML_Char const*) noexcept {
    static_cast<expat_session*>(user_data)->count_declaration();
}

static void XMLCALL fl_i18n_attribute_declaration(void* user_data, XML_Char const*, XML_Char const*,
                                                  XML_Char const*, XML_Char const* default_value,
                                                  int) noexcept {
    auto& session = *static_cast<expat_session*>(user_data);
    if (default_value)
        session.refuse_declaration();
    else
        session.count_declaration();
}

} // extern "C"
} // namespace

expat_session::expat_session(XML_Parser parser) noexcept : parser_(parser) {
    if (!parser)
        return;
    XML_SetUserData(parser, this);
    XML_SetEntityDeclHandler(parser, fl_i18n_entity_declaration);
    XML_SetAttlistDeclHandler(parser, fl_i18n_attribute_declaration);
}

void expat_session::count_declaration() noexcept {
    if (++declarations_ > most_declarations)
        stop();
}

void expat_session::refuse_declaration() noexcept {
    stop();
}

void expat_session::stop() noexcept {
    stopped_ = true;
    XML_StopParser(parser_, XML_FALSE);
}

expat_session::result expat_session::parse(std::istream& stream) {
    if (!parser_)
        return result::malformed;
    std::vector<char> buffer(buffer_size);
    std::size_t fed = 0;
    for (bool last = false; !last;) {
        stream.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        if (stream.bad())
            return result::unreadable;
        last = stream.eof();
        if (!feed(buffer.data(), static_cast<int>(stream.gcount()), last))
            return result::malformed;
        fed += static_cast<std::size_t>(stream.gcount());
        buffer.resize(std::clamp(unfinished_token(fed), buffer_size, largest_buffer));
    }
    return result::complete;
}

// The bytes that the parser holds back because their token goes on, and scans again with each further piece.
// Pieces of that size keep the repeated scans in proportion to the file.
std::size_t expat_session::unfinished_token(std::size_t fed) const noexcept {
    XML_Index const done = XML_GetCurrentByteIndex(parser_);
    return done < 0 ? fed : fed - static_cast<std::size_t>(done);
}

bool expat_session::feed(char const* data, int size, bool last) {
    bool const parsed = XML_Parse(parser_, data, size, last) == XML_STATUS_OK;
    if (failure_)
        std::rethrow_exception(std::exchange(failure_, nullptr));
    return parsed;
}

} // namespace fl::xml
