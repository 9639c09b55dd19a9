#include <fl/i18n/catalog_map_xml.hpp>

#include <boost/unordered_set.hpp>

#include <string_view>
#include <utility>

namespace fl::i18n {

MetaInfoExpatEventHandler::MetaInfoExpatEventHandler(
    ustring const& head, boost::shared_ptr<boost::unordered::unordered_set<ustring>> keys)
    : ExpatEventHandler("UTF-8"),
      head_(head),
      keys_(std::move(keys)) {}

MetaInfoExpatEventHandler::~MetaInfoExpatEventHandler() = default;

bool MetaInfoExpatEventHandler::process_root(char const** /*attributes*/) {
    if (states_.back() != map_start)
        return false;
    states_.push_back(map_in_root);
    return true;
}

bool MetaInfoExpatEventHandler::process_entry_tag(char const** attributes) {
    if (states_.back() != map_in_root)
        return false;
    states_.push_back(map_in_entry);
    while (*attributes) {
        if (std::string_view(*attributes++) != "key")
            continue;
        char const* const key = *attributes;
        if (!key)
            return false;
        keys_->insert(widen_.convert(key));
        ++attributes;
    }
    return true;
}

bool MetaInfoExpatEventHandler::doElementStart(char const* name, char const** attributes) {
    if (std::string_view(name) == "MessageCatalogMap")
        return process_root(attributes);
    return std::string_view(name) == "entry" && process_entry_tag(attributes);
}

bool MetaInfoExpatEventHandler::doElementData(char const* /*data*/, int /*length*/) {
    return true;
}

bool MetaInfoExpatEventHandler::doElementEnd(char const* /*name*/) {
    states_.pop_back();
    return true;
}

} // namespace fl::i18n
