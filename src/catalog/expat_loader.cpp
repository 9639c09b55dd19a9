#include "xml/expat_session.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/expat_loader.hpp>

#include <ios>
#include <utility>

namespace fl::i18n {

ExpatEventHandler::ExpatEventHandler(std::string const& encoding) : encoding_(encoding) {}

ExpatEventHandler::~ExpatEventHandler() = default;

bool ExpatEventHandler::elementStart(char const* name, char const** attributes) {
    return continue_ && (continue_ = doElementStart(name, attributes));
}

bool ExpatEventHandler::elementData(char const* data, int length) {
    return continue_ && (continue_ = doElementData(data, length));
}

bool ExpatEventHandler::elementEnd(char const* name) {
    return continue_ && (continue_ = doElementEnd(name));
}

struct ExpatLoader::XML_Parser_User_Data : xml::expat_session {
    XML_Parser_User_Data(XML_Parser parser, boost::shared_ptr<ExpatEventHandler> its_handler)
        : expat_session(parser),
          handler(std::move(its_handler)) {}

    boost::shared_ptr<ExpatEventHandler> handler;
};

namespace {

template <class Event>
void forward(void* user_data, Event const& event) noexcept {
    auto& data = xml::expat_session::of<ExpatLoader::XML_Parser_User_Data>(user_data);
    data.forward([&] { return event(*data.handler); });
}

extern "C" {

static void XMLCALL fl_i18n_element_start(void* user_data, XML_Char const* name,
                                          XML_Char const** attributes) noexcept {
    forward(user_data, [=](ExpatEventHandler& handler) { return handler.elementStart(name, attributes); });
}

static void XMLCALL fl_i18n_element_end(void* user_data, XML_Char const* name) noexcept {
    forward(user_data, [=](ExpatEventHandler& handler) { return handler.elementEnd(name); });
}

static void XMLCALL fl_i18n_element_data(void* user_data, XML_Char const* data, int length) noexcept {
    forward(user_data, [=](ExpatEventHandler& handler) { return handler.elementData(data, length); });
}

} // extern "C"

bool is_regular_file(filesystem::upath const& path) {
    try {
        return filesystem::status(path).kind() == filesystem::file_status::regular_file;
    } catch (filesystem::FsysExceptionBase const&) {
        return false;
    }
}

} // namespace

ExpatLoader::XML_Parser_Guard::XML_Parser_Guard(std::string const& encoding)
    : parser_(XML_ParserCreate(encoding.c_str())) {}

ExpatLoader::XML_Parser_Guard::~XML_Parser_Guard() {
    XML_ParserFree(parser_);
}

ExpatLoader::ExpatLoader(filesystem::upath const& path, boost::shared_ptr<ExpatEventHandler> handler)
    : path_(path),
      parser_(std::make_unique<XML_Parser_Guard>(handler->encoding())),
      handler_(std::move(handler)),
      userData_(std::make_unique<XML_Parser_User_Data>(parser_->get(), handler_)) {
    XML_Parser const parser = parser_->get();
    if (!parser)
        return; // out of memory: every parse fails
    XML_SetElementHandler(parser, fl_i18n_element_start, fl_i18n_element_end);
    XML_SetCharacterDataHandler(parser, fl_i18n_element_data);
}

ExpatLoader::~ExpatLoader() = default;

bool ExpatLoader::load_file() {
    std::string const name = filesystem::detail::make_native_access_form_i18n(path_.string());
    if (!is_regular_file(path_))
        return false; // opening a pipe, for one, would wait for its other end
    filesystem::basic_ifstream<char> file(name, std::ios_base::in);
    return file.good() && userData_->parse(file) == xml::expat_session::result::complete;
}

} // namespace fl::i18n
