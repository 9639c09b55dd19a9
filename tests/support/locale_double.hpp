/// A locale of another class than the library's.
#pragma once

#include <fl/i18n/locale.hpp>

#include <utility>

namespace fl::testing {

/// Has names that no database has resolved, and hardly more.
struct locale_double final : i18n::QnLocale {
    explicit locale_double(std::string text) : name(std::move(text)) {}
    bool operator==(QnLocale const&) const override { return false; }
    bool operator!=(QnLocale const&) const override { return true; }
    std::string shortName(LcCategory category) const override { return category == time ? name : "fr_CA"; }
    std::string language(LcCategory, language_tag_option) const override { return ""; }
    std::string territory(LcCategory) const override { return ""; }
    std::string modifier(LcCategory) const override { return ""; }
    std::string toLanguageTag(LcCategory) const override { return ""; }
    std::string encoding() const override { return "UTF-8"; }
    std::string localeSpecificEncoding() const override { return ""; }
    i18n::lc_opt_data_value getLcOptData(i18n::QnLcOptDataCtx::LcOptDataType) const override { return ""; }

    std::string name;
};

} // namespace fl::testing
