/// The names of categories and of optional data.
#pragma once

#include <fl/i18n/locale.hpp>

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

/// Thread-compatible: filled once, before others know it. Each question throws `QnLcDataNotFound` for what
/// the tables don't hold, which is everything until they are filled; ASCII case of a name is ignored.
class category_names {
public:
    void fill();

    QnLocale::LcCategory category(std::string_view name) const;
    std::string const& category_name(QnLocale::LcCategory category) const;
    QnLcOptDataCtx::LcOptDataType optional_data(std::string_view name) const;

private:
    template <class T>
    using by_name = std::map<std::string, T, std::less<>>;

    by_name<QnLocale::LcCategory> categories_;
    std::map<QnLocale::LcCategory, std::string> category_names_;
    by_name<QnLcOptDataCtx::LcOptDataType> optional_data_;
};

} // namespace fl::i18n::lcmgmt
