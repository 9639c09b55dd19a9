#include "catalog/message_format.hpp"
#include "support/raise.hpp"

#include <fl/i18n/message_catalog.hpp>

namespace fl::i18n {
namespace {

void check_hole_count(std::size_t expected, std::size_t found) {
    if (expected != found)
        support::raise(MessageCatalog::IncorrectHoleCount(expected, found));
}

void fill_holes(detail::hole_names const& names, std::vector<hole_value>& holes,
                hole_fill_function const& fill) {
    for (icu::UnicodeString const& name : names) {
        auto const info = detail::parseHoleName(name);
        fill(holes, {info.custom_type, static_cast<unsigned long>(info.number)});
    }
}

} // namespace

ustring MessageCatalog::GetFormattedMessage(ustring const& message, std::vector<hole_value> const& holes) {
    return MessageCatalogImpl::GetFormattedMessageImpl(message, holes, true);
}

ustring MessageCatalog::GetFormattedMessage(ustring const& message, unsigned long holeCount,
                                            hole_fill_function const& fill) {
    if (holeCount != 0 && !fill)
        support::raise(MessageFormatIncorrect());
    std::vector<hole_value> holes(holeCount, hole_value(ustring()));
    return MessageCatalogImpl::GetFormattedMessageImpl(message, holes, fill);
}

ustring MessageCatalog::GetCustomHoleType(ustring const& message, unsigned long number) {
    auto format = detail::makeMessageFormat(message);
    auto const names = detail::listHoleNames(format);
    if (names.size() < number)
        support::raise(IncorrectHoleCount(number, names.size()));
    for (icu::UnicodeString const& name : names) {
        auto info = detail::parseHoleName(name);
        if (!info.custom_type.empty() && static_cast<unsigned long>(info.number) == number)
            return std::move(info.custom_type);
    }
    return {};
}

ustring MessageCatalogImpl::getFormattedMessage(ustring const& message,
                                                std::vector<hole_value> const& holes) {
    return GetFormattedMessageImpl(message, holes, false);
}

ustring MessageCatalogImpl::GetFormattedMessageImpl(ustring const& message,
                                                    std::vector<hole_value> const& holes, bool strict) {
    auto format = detail::makeMessageFormat(message);
    if (!strict && !format.usesNamedArguments())
        return detail::formatHoles(format, holes, nullptr);
    auto const names = detail::listHoleNames(format);
    if (strict)
        check_hole_count(names.size(), holes.size());
    return detail::formatHoles(format, holes, &names);
}

ustring MessageCatalogImpl::GetFormattedMessageImpl(ustring const& message, std::vector<hole_value>& holes,
                                                    hole_fill_function const& fill) {
    auto format = detail::makeMessageFormat(message);
    auto const names = detail::listHoleNames(format);
    if (!names.empty() && detail::is_word(names.front())) {
        check_hole_count(0, holes.size());
        return message;
    }
    check_hole_count(names.size(), holes.size());
    fill_holes(names, holes, fill);
    return detail::formatHoles(format, holes, &names);
}

} // namespace fl::i18n
