/// @file
/// The one implementation of `QnLocale`.
///
/// A `QnLocaleImpl` is filled through its setters while its maker alone knows it, and is then handed on as
/// `QnLocale const`. Most callers want `QnLocale::createLocale` instead; this class serves those who set up a
/// locale step by step or on a database of their own:
///
///     lcmgmt::locale_database const database;
///     QnLocaleImpl locale(database);
///     locale.setLcName("de_DE", "@euro");
///     locale.setEncoding("UTF-8");
///
/// Thread safety: one thread while the setters are called, any number afterwards.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/locale.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace fl::i18n {

namespace lcmgmt {
class locale_database;
class published_databases;
} // namespace lcmgmt

/// The one implementation of `QnLocale`. Its setters are for an object under construction: once it is shared,
/// a locale never changes.
class FL_I18N_EXPORT QnLocaleImpl final : public QnLocale {
public:
    /// A locale whose names and encodings are all empty. `database` must outlive it.
    explicit QnLocaleImpl(lcmgmt::locale_database const& database);
    /// The same on the database that is in force at each use, as the constructors below have it. For the
    /// library's own context, as only that has the argument.
    explicit QnLocaleImpl(lcmgmt::published_databases const& databases);
    /// As `QnLocale::createLocale(name)`.
    explicit QnLocaleImpl(std::string const& name);
    /// As `QnLocale::createLocale(other)`: names are copied without a check. The terminal encoding becomes
    /// what `other` answers for it. The database is the process-wide one. Throws `std::bad_variant_access` if
    /// `other` is of another class and gives a terminal encoding that is no string.
    explicit QnLocaleImpl(QnLocale const& other);
    QnLocaleImpl(QnLocaleImpl const& other);
    ~QnLocaleImpl() override;

    /// Sets name and modifier of all categories, or of one. The short name of `name` must be known to the
    /// database, otherwise `QnLcInvLcName` is thrown and nothing changes; what is stored is the name and the
    /// modifier as given, except that category messages stores "en_US" for "en_US_POSIX".
    /// @{
    void setLcName(std::string const& name, std::string const& modifier);
    void setLcName(std::string const& name, std::string const& modifier, LcCategory category);
    /// @}

    /// Stored without a check.
    void setEncoding(std::string const& encoding);
    /// Stored without a check; empty means the same as the encoding.
    void setTerminalEncoding(std::string const& encoding);

    /// Paper and units of the locale of category time, from ICU (`ulocdata_getPaperSize`,
    /// `ulocdata_getMeasurementSystem`); those of "en_US_POSIX" if ICU fails. The values are those of
    /// `QnLcOptDataCtx::PaperSize` and `QnLcOptDataCtx::MeasurementSystem`.
    /// @{
    std::int32_t getPaperSizeType() const;
    std::int32_t getUnitType() const;
    /// @}

    bool operator==(QnLocale const& other) const override;
    /// The same; C++20 would find two equally good ways to compare two objects of this class otherwise.
    bool operator==(QnLocaleImpl const& other) const {
        return operator==(static_cast<QnLocale const&>(other));
    }
    bool operator!=(QnLocale const& other) const override;
    std::string shortName(LcCategory category) const override;
    std::string language(LcCategory category, language_tag_option option) const override;
    std::string territory(LcCategory category) const override;
    std::string modifier(LcCategory category) const override;
    std::string toLanguageTag(LcCategory category) const override;
    std::string encoding() const override;
    std::string localeSpecificEncoding() const override;
    lc_opt_data_value getLcOptData(QnLcOptDataCtx::LcOptDataType type) const override;

private:
    struct category_record {
        std::string short_name;
        std::string modifier;
    };

    category_record const& at(LcCategory category) const;
    void check_name(std::string const& name) const;
    void store(std::string const& name, std::string const& modifier, std::size_t index);
    std::string terminal_or_text_encoding() const;

    lcmgmt::locale_database const& database() const noexcept;

    lcmgmt::locale_database const* own_database_ = nullptr; // null if the one in force counts
    lcmgmt::published_databases const* databases_ = nullptr;
    std::array<category_record, 6> categories_;
    std::string encoding_;
    std::string terminal_encoding_;
};

} // namespace fl::i18n
