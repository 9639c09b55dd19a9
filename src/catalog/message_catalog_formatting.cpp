// The formatting of messages as callers see it. `message_catalog_impl.cpp` does it, by `message_format.cpp`.

#include "catalog/message_format.hpp"
#include "support/raise.hpp"

#include <fl/i18n/message_catalog_impl.hpp>

namespace fl::i18n {

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

} // namespace fl::i18n
