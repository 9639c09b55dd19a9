#include <fl/i18n/lc_data_xml.hpp>

#include <utility>

namespace fl::i18n::lcmgmt {

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

} // namespace fl::i18n::lcmgmt
