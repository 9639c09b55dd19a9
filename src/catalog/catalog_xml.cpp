#include "conversion/codecs/ascii_text.hpp"

#include <fl/i18n/catalog_xml.hpp>

#include <boost/make_shared.hpp>

#include <utility>

namespace fl::i18n {
namespace {

constexpr char category_tag[] = "rsccat";
constexpr char message_tag[] = "message";
constexpr char entry_tag[] = "entry";
constexpr char version_attribute[] = "version";
constexpr char locale_attribute[] = "locale";
constexpr char key_attribute[] = "key";

/// Whether a name is a known one. Unlike strcmp this is expanded in place: names are compared twice for each
/// message.
template <std::size_t Size>
bool equal(char const* name, char const (&known)[Size]) noexcept {
    for (std::size_t i = 0; i < Size; ++i)
        if (name[i] != known[i])
            return false;
    return true;
}

bool is_category_attribute(char const* name) noexcept {
    return equal(name, version_attribute) || equal(name, locale_attribute);
}

} // namespace

MessageCatalogDataStore::~MessageCatalogDataStore() = default;

MessageCatalogFileLoader::~MessageCatalogFileLoader() = default;

XMLCatalogFileLoader::~XMLCatalogFileLoader() = default;

bool XMLCatalogFileLoader::loadFile(filesystem::upath const& path, MessageCatalogDataStore& store) {
    return ExpatLoader(path, boost::make_shared<MessageCatalogExpatEventHandler>(&store)).load_file();
}

MessageCatalogExpatEventHandler::MessageCatalogExpatEventHandler(MessageCatalogDataStore* store)
    : ExpatEventHandler("UTF-8"),
      store_(store) {}

MessageCatalogExpatEventHandler::~MessageCatalogExpatEventHandler() = default;

bool MessageCatalogExpatEventHandler::doElementStart(char const* name, char const** attributes) {
    if (equal(name, entry_tag))
        return processEntryTag(attributes);
    if (equal(name, message_tag))
        return processMsgTag(attributes);
    return equal(name, category_tag) && processCatTag(attributes);
}

bool MessageCatalogExpatEventHandler::processCatTag(char const** attributes) {
    if (std::exchange(state_, parse_state::in_root) != parse_state::before_root)
        return false;
    while (*attributes) {
        bool const has_value = is_category_attribute(*attributes++);
        if (has_value && !*attributes++)
            return false;
    }
    return true;
}

bool MessageCatalogExpatEventHandler::processMsgTag(char const** /*attributes*/) {
    if (state_ != parse_state::in_root)
        return false;
    state_ = parse_state::in_message;
    return true;
}

bool MessageCatalogExpatEventHandler::processEntryTag(char const** attributes) {
    auto const previous = std::exchange(state_, parse_state::in_entries);
    if (previous != parse_state::in_message && previous != parse_state::in_entries)
        return false;
    for (; *attributes; attributes += 2) {
        if (!attributes[1])
            return false;
        if (equal(attributes[0], key_attribute))
            key_ = attributes[1];
    }
    return true;
}

bool MessageCatalogExpatEventHandler::doElementData(char const* data, int length) {
    if (state_ == parse_state::in_entries && !key_.empty())
        text_.add_chunk({data, static_cast<std::size_t>(length)});
    return true;
}

bool MessageCatalogExpatEventHandler::doElementEnd(char const* name) {
    if (!equal(name, entry_tag))
        return true;
    if (state_ != parse_state::in_entries || key_.empty())
        return false; // here an entry without a usable key is found out
    text_.extract_complete_message(message_);
    addEntry(key_, message_);
    key_.clear();
    return true;
}

void MessageCatalogExpatEventHandler::addEntry(std::string const& key, std::string const& value) {
    store_->addEntry(key, value);
}

char const* MessageCatalogExpatEventHandler::getCategoryTag() noexcept {
    return category_tag;
}
char const* MessageCatalogExpatEventHandler::getMessageTag() noexcept {
    return message_tag;
}
char const* MessageCatalogExpatEventHandler::getEntryTag() noexcept {
    return entry_tag;
}
char const* MessageCatalogExpatEventHandler::getVersionAttribute() noexcept {
    return version_attribute;
}
char const* MessageCatalogExpatEventHandler::getLocaleAttribute() noexcept {
    return locale_attribute;
}
char const* MessageCatalogExpatEventHandler::getEntryKeyStr() noexcept {
    return key_attribute;
}

ustring MessageCatalogUtility::obtainXMLFilePathPattern(std::string const& id) {
    std::size_t const first = id.find(':');
    if (first == std::string::npos || id.back() == ':')
        return ustring();
    std::string pattern = id.substr(0, first) + "/%S";
    for (std::size_t begin = first; begin != std::string::npos;) {
        std::size_t const end = id.find(':', begin + 1);
        pattern.append("/").append(id, begin + 1, end == std::string::npos ? end : end - begin - 1);
        begin = end;
    }
    pattern += ".xml";
    return detail::from_ascii(pattern);
}

} // namespace fl::i18n
