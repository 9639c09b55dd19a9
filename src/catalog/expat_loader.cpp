#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/expat_loader.hpp>

#include <expat.h>

#include <algorithm>
#include <exception>
#include <ios>
#include <utility>
#include <vector>

namespace fl::i18n {

struct ExpatLoader::XML_Parser_User_Data {
    XML_Parser_User_Data(XML_Parser its_parser, boost::shared_ptr<ExpatEventHandler> its_handler)
        : parser(its_parser),
          handler(std::move(its_handler)) {}

    XML_Parser parser;
    boost::shared_ptr<ExpatEventHandler> handler;
    int entities = 0;           // declared so far
    std::exception_ptr failure; // on its way across the parser, which knows no exceptions
};

namespace {

template <class Event>
void forward(void* user_data, Event&& event) noexcept {
    auto& data = *static_cast<ExpatLoader::XML_Parser_User_Data*>(user_data);
    if (data.failure)
        return; // the parser may report an event or two after it was stopped
    try {
        if (event(*data.handler))
            return;
    } catch (...) {
        data.failure = std::current_exception();
    }
    XML_StopParser(data.parser, XML_FALSE);
}

// A chain of entities, each within the next, is expanded by recursion and outgrows the stack long before it
// outgrows expat's limits.
constexpr int most_entities = 100;

void count_entity(ExpatLoader::XML_Parser_User_Data& data) noexcept {
    if (++data.entities > most_entities)
        XML_StopParser(data.parser, XML_FALSE);
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

static void XMLCALL fl_i18n_entity_declaration(void* user_data, XML_Char const*, int, XML_Char const*, int,
                                               XML_Char const*, XML_Char const*, XML_Char const*,
                                               XML_Char const*) noexcept {
    count_entity(*static_cast<ExpatLoader::XML_Parser_User_Data*>(user_data));
}

} // extern "C"

constexpr std::size_t buffer_size = 1024;
constexpr std::size_t largest_buffer = std::size_t(1) << 30; // what one call of expat takes

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
    XML_SetEntityDeclHandler(parser, fl_i18n_entity_declaration);
    XML_SetUserData(parser, userData_.get());
}

ExpatLoader::~ExpatLoader() = default;

bool ExpatLoader::load_file() {
    std::string const name = filesystem::detail::make_native_access_form_i18n(path_.string());
    if (!is_regular_file(path_))
        return false; // opening a pipe, for one, would wait for its other end
    filesystem::basic_ifstream<char> file(name, std::ios_base::in);
    if (!file.good())
        return false;
    std::vector<char> buffer(buffer_size);
    std::size_t fed = 0;
    bool parsed = true;
    for (bool last = false; parsed && !last;) {
        file.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        if (file.bad())
            return false;
        last = file.eof();
        parsed = parse(buffer.data(), static_cast<int>(file.gcount()), last);
        fed += static_cast<std::size_t>(file.gcount());
        buffer.resize(std::clamp(unfinished_token(fed), buffer_size, largest_buffer));
    }
    return parsed;
}

/// The bytes that the parser holds back because their token goes on, and scans again with each further piece.
/// Pieces of that size keep the repeated scans in proportion to the file.
std::size_t ExpatLoader::unfinished_token(std::size_t fed) const {
    XML_Index const done = parser_->get() ? XML_GetCurrentByteIndex(parser_->get()) : 0;
    return done < 0 ? fed : fed - static_cast<std::size_t>(done);
}

bool ExpatLoader::parse(char const* data, int length, bool last) {
    if (!parser_->get())
        return false;
    // Alive through all events of the buffer; a copy for each event would cost more than the event.
    boost::shared_ptr<ExpatEventHandler> const handler = userData_->handler;
    bool const parsed = XML_Parse(parser_->get(), data, length, last) == XML_STATUS_OK;
    if (userData_->failure)
        std::rethrow_exception(std::exchange(userData_->failure, nullptr));
    return parsed;
}

} // namespace fl::i18n
