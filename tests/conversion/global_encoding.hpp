#pragma once

#include "locale_runtime/global_locale_slot.hpp"

#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <memory>
#include <string>

namespace fl::testing {

/// Puts a locale with another encoding in force, as a change of the global locale does.
inline void set_global_encoding(std::string const& encoding, std::string const& terminal = "") {
    using namespace fl::i18n;
    auto locale = std::make_unique<QnLocaleImpl>(QnLocale::global());
    locale->setEncoding(encoding);
    locale->setTerminalEncoding(terminal);
    auto slot = std::make_unique<lcmgmt::global_locale_slot>(std::move(locale));
    lcmgmt::get_qnlocale_context()->publish_slot(std::move(slot));
}

} // namespace fl::testing
