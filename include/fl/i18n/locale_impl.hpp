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
#include <memory>
#include <string>
#include <string_view>

namespace fl::i18n {

namespace lcmgmt {
class locale_database;
class published_databases;
struct locale_name_element;
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
    [[nodiscard]] std::int32_t getPaperSizeType() const;
    [[nodiscard]] std::int32_t getUnitType() const;
    /// @}

    [[nodiscard]] bool operator==(QnLocale const& other) const override;
    /// The same; C++20 would find two equally good ways to compare two objects of this class otherwise.
    [[nodiscard]] bool operator==(QnLocaleImpl const& other) const {
        return operator==(static_cast<QnLocale const&>(other));
    }
    [[nodiscard]] bool operator!=(QnLocale const& other) const override;
    [[nodiscard]] std::string shortName(LcCategory category) const override;
    [[nodiscard]] std::string language(LcCategory category, language_tag_option option) const override;
    [[nodiscard]] std::string territory(LcCategory category) const override;
    [[nodiscard]] std::string modifier(LcCategory category) const override;
    [[nodiscard]] std::string toLanguageTag(LcCategory category) const override;
    [[nodiscard]] std::string encoding() const override;
    [[nodiscard]] std::string localeSpecificEncoding() const override;
    [[nodiscard]] lc_opt_data_value getLcOptData(QnLcOptDataCtx::LcOptDataType type) const override;

private:
    friend class QnLocale; // which makes locales of several names by `replace` and `copy`

    // Name and modifier of a category, and the name taken apart. It never changes, so that the categories
    // that agree share one, as do copies of the locale.
    struct category_record;
    using record_pointer = std::shared_ptr<category_record const>;

    static QnLocaleImpl const* of_this_class(QnLocale const& locale) noexcept;
    static record_pointer make_record(std::string const& name, std::string const& modifier);

    void replace(LcCategory category, std::string const& name);
    void copy(LcCategory category, QnLocale const& source);
    category_record const& at(LcCategory category) const;
    void check_name(std::string_view name) const;
    record_pointer make_resolved_record(std::string const& resolved, std::string_view given,
                                        lcmgmt::locale_name_element&& element) const;
    std::string store_resolved(std::string const& resolved, std::string const& name);
    void store(record_pointer record, LcCategory category);
    void store_all(record_pointer record);
    record_pointer const& pointer_at(LcCategory category) const noexcept;
    std::string terminal_or_text_encoding() const;

    lcmgmt::locale_database const& database() const noexcept;

    lcmgmt::locale_database const* own_database_ = nullptr; // null if the one in force counts
    lcmgmt::published_databases const* databases_ = nullptr;
    record_pointer common_;                    // of the categories without one of their own; may be null
    std::array<record_pointer, 6> categories_; // null: the common one
    std::string encoding_;
    std::string terminal_encoding_;
};

} // namespace fl::i18n
