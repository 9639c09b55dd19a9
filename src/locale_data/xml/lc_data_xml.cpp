#include "support/raise.hpp"
#include "xml/expat_session.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/i18n/lc_data_xml.hpp>

#include <filesystem>
#include <ios>
#include <utility>

namespace fl::i18n::lcmgmt {
namespace {

struct session : xml::expat_session {
    session(XML_Parser parser, EventHandler& its_handler) : expat_session(parser), handler(its_handler) {}

    EventHandler& handler;
};

template <class Event>
void forward(void* user_data, Event const& event) noexcept {
    auto& mine = xml::expat_session::of<session>(user_data);
    mine.forward([&] { return event(mine.handler) == 0; });
}

extern "C" {

static void XMLCALL fl_i18n_lcdata_declaration(void* user_data, XML_Char const* version,
                                               XML_Char const* encoding, int standalone) noexcept {
    forward(user_data,
            [=](EventHandler const& handler) { return handler.checkXMLDoc(version, encoding, standalone); });
}

static void XMLCALL fl_i18n_lcdata_start(void* user_data, XML_Char const* name,
                                         XML_Char const** attributes) noexcept {
    forward(user_data, [=](EventHandler& handler) { return handler.startEntry(name, attributes); });
}

static void XMLCALL fl_i18n_lcdata_end(void* user_data, XML_Char const* name) noexcept {
    forward(user_data, [=](EventHandler& handler) { return handler.endEntry(name); });
}

static void XMLCALL fl_i18n_lcdata_text(void* user_data, XML_Char const* text, int length) noexcept {
    forward(user_data, [=](EventHandler& handler) { return handler.entryData(text, length); });
}

} // extern "C"

/// Pipes and devices might never answer. A directory can be opened, and then fails to be read. The standard
/// library is asked, since the name is bytes in any encoding, and `filesystem::status` takes text.
bool is_openable(std::string const& name) {
    std::error_code ignored;
    std::filesystem::file_status const status = std::filesystem::status(name, ignored);
    return std::filesystem::is_regular_file(status) || std::filesystem::is_directory(status);
}

void open(filesystem::basic_ifstream<char>& file, filesystem::native_path const& path) {
    try {
        std::string const name = filesystem::detail::make_access_form(path.string());
        if (is_openable(name))
            file.open(name, std::ios_base::in);
    } catch (filesystem::FsysExceptionBase const&) {
        // A name that the system can't be asked for is one of no file.
    }
    if (!file.is_open())
        support::raise(LcRscOpenFileFailure(path.string()));
}

[[noreturn]] void raise_invalid(XML_Parser parser) {
    support::raise(LcRscInvalidXmlDoc(XML_GetErrorCode(parser), XML_GetCurrentColumnNumber(parser),
                                      XML_GetCurrentLineNumber(parser)));
}

} // namespace

EventHandler::~EventHandler() = default;

void EventValidator::setEventDesc(std::string name, int id, std::string parent) {
    descriptions_.insert_or_assign(std::move(name), description{id, std::move(parent)});
}

int EventValidator::checkStartEvent(std::string_view name) {
    auto const place = descriptions_.find(name);
    if (place == descriptions_.end())
        return invalid;
    description const& element = place->second;
    if (!open_.empty()) {
        if (open_.back() == name)
            return element.id; // not opened a second time
        if (open_.back() != element.parent)
            return invalid;
    }
    open_.emplace_back(name);
    return element.id;
}

int EventValidator::checkEndEvent(std::string_view name) {
    if (open_.empty() || open_.back() != name)
        return invalid;
    open_.pop_back();
    return 0;
}

void parseXmlDocument(EventHandler& handler, filesystem::native_path const& path) {
    filesystem::basic_ifstream<char> file;
    open(file, path);
    xml::parser_ptr const parser(XML_ParserCreate(handler.getEncoding().c_str()));
    if (!parser)
        support::raise(LcRscParserCreationFailure());
    session mine(parser.get(), handler);
    XML_SetXmlDeclHandler(parser.get(), fl_i18n_lcdata_declaration);
    XML_SetElementHandler(parser.get(), fl_i18n_lcdata_start, fl_i18n_lcdata_end);
    XML_SetCharacterDataHandler(parser.get(), fl_i18n_lcdata_text);
    switch (mine.parse(file)) {
    case session::result::complete:
        return;
    case session::result::unreadable:
        support::raise(LcRscFileReadFailure(path.string()));
    case session::result::malformed:
        raise_invalid(parser.get());
    }
}

void parseLcData(locale_database& database, filesystem::native_path const& path) {
    LcdbEventHandler handler(database);
    parseXmlDocument(handler, path);
}

} // namespace fl::i18n::lcmgmt
