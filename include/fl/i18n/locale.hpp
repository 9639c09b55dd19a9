/// @file
/// The library's own locale.
///
/// A `QnLocale` names a locale for each of six categories, each with an optional modifier, and holds one text
/// encoding and one terminal encoding. It has nothing to do with the C library's `setlocale` nor with
/// `std::locale`: changing either leaves every `QnLocale` as it is. Message look-up, resource search and
/// conversion to the current encoding all ask a `QnLocale`.
///
/// Three objects exist for the whole process: `classic()`, `global()` and `system()`. Others are made by
/// `createLocale`:
///
///     using fl::i18n::QnLocale;
///     auto const locale = QnLocale::createLocale("de_AT", QnLocale::messages, "fr_FR");
///     locale->shortName(QnLocale::time);                    // "de_AT"
///     locale->language(QnLocale::messages,
///                      QnLocale::language_with_script);     // "fr"
///     locale->encoding();                                   // the default encoding of de_AT
///
/// All names are narrow ASCII text without a terminator in their length; bytes outside ASCII are carried
/// unchanged and match nothing. A name is accepted in each form that `decompose_locale_name` reads:
/// "de_AT", "de-AT", "sr-Latn_BA", "de_DE.UTF-8@euro", "zh-Hant-TW", and the aliases of the locale database
/// ("C", "iw").
///
/// Thread safety: a published object never changes, so any number of threads may use it without a lock.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/locale_exceptions.hpp>

#include <boost/core/noncopyable.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace fl::i18n {

/// The optional data of a locale: what may be asked by `QnLocale::getLcOptData`, and the kinds of answers.
class FL_I18N_EXPORT QnLcOptDataCtx {
public:
    enum LcOptDataType : std::int32_t {
        jvm_encoding = 0,      ///< "jvmencoding": string, the encoding's name for a Java virtual machine
        terminal_encoding = 1, ///< "termencoding": string
        terminal_input_encoding = 2,  ///< "terminputencoding": string
        terminal_output_encoding = 3, ///< "termoutputencoding": string
        paper_size = 4,               ///< "papersize": `PaperSize`
        measurement_system = 5        ///< "unittype": `MeasurementSystem`
    };

    enum PaperSize : std::int32_t {
        other_paper = 0, ///< any size but A4, also when the size cannot be found out
        a4_paper = 1     ///< 210 mm by 297 mm
    };

    enum MeasurementSystem : std::int32_t {
        us_units = 0, ///< United States customary units, also when the system cannot be found out
        metric_units = 1,
        uk_units = 2 ///< the mixture of the United Kingdom
    };

    /// The type with that name (the quoted names above); ASCII case is ignored. Throws `QnLcDataNotFound`
    /// for another name. Thread-safe.
    [[nodiscard]] static LcOptDataType getOptDataType(std::string const& name);
};

/// An optional datum; which alternative it holds depends on the type that was asked for alone.
using lc_opt_data_value =
    std::variant<std::string, QnLcOptDataCtx::PaperSize, QnLcOptDataCtx::MeasurementSystem>;

/// A locale: names for six categories, a text encoding and a terminal encoding.
class FL_I18N_EXPORT QnLocale : public boost::noncopyable {
public:
    /// The categories. They are this library's own, with values unlike those of the C library's `LC_*`
    /// macros.
    enum LcCategory : std::int32_t {
        ctype = 0,    ///< "ctype"
        collate = 1,  ///< "collate"
        time = 2,     ///< "time"; paper size and units follow it too
        numeric = 3,  ///< "numeric"
        monetary = 4, ///< "monetary"
        messages = 5  ///< "messages"; never "en_US_POSIX", which is kept as "en_US" here
    };

    /// Which text `language` gives. A value that is not listed counts as `language_with_script`.
    enum language_tag_option : std::int32_t {
        language_with_script = 0,   ///< "sr-Latn"
        language_without_script = 1 ///< "sr"
    };

    /// A category and the locale name (with a modifier, if wanted) for it.
    struct CategoryContext {
        LcCategory category;
        std::string name;
    };

    /// Process-wide objects. The references stay valid until the process ends. The first use of any of them
    /// builds the context with its built-in locale; nothing of the user's system is read before start-up
    /// (`initialize`). They throw what building the context throws (`std::bad_alloc`), and `QnLcDataNotFound`
    /// if an earlier shortage of memory has left the context without a locale. Thread-safe, without a lock.
    /// @{

    /// "en_US_POSIX" in all categories, "en_US" for messages; encoding "UTF-8". Never changes.
    [[nodiscard]] static QnLocale const& classic();
    /// The current locale: each call gives the object that is current at that moment, and keeping the
    /// reference means keeping that locale. The classic locale until start-up ends.
    [[nodiscard]] static QnLocale const& global();
    /// The locale found on the system. The classic locale until start-up ends.
    [[nodiscard]] static QnLocale const& system();
    /// @}

    /// Making locales. In each form:
    /// - an empty name throws `QnLcInvLcArgument`; a name that the locale database does not know throws
    ///   `QnLcInvLcName`, as does an encoding part that is unknown to ICU or to the database;
    /// - a category outside 0 to 5 throws `QnLcDataNotFound`;
    /// - the terminal encoding of a new locale is empty, so that it follows the encoding; a copy takes over
    ///   what its source answers, so that there it is fixed;
    /// - a failure leaves nothing behind.
    ///
    /// An encoding part is opened with ICU's `ucnv_open`, named by `ucnv_getName`, and that name must be in
    /// the locale database. ICU's internal names differ from the database's in most cases ("SJIS" becomes
    /// "ibm-943_P15A-2003"), so only about a dozen of the database's encodings pass: UTF-8, ISO-8859-1,
    /// US-ASCII, GB18030, the UTF-16 and UTF-32 forms and a few more. "ja_JP.SJIS" is refused.
    ///
    /// Names are checked in two ways. The locale's own `name` is first cut down to its short name; a name
    /// given for a category (`other`, and the names of a vector) is looked up whole. The difference shows
    /// with aliases that are no languages, such as "C". As the locale's own name "C.UTF-8" is accepted, since
    /// "C" is known; the encoding part doesn't count, since the whole can't be taken apart. As a category's
    /// name "C.UTF-8" throws `QnLcInvLcName`, since no alias has that name.
    ///
    /// Thread-safe.
    /// @{

    /// A locale with one name for all categories. Without an encoding part the encoding is the database's
    /// default for the locale, except "UTF-8" for "en_US_POSIX".
    [[nodiscard]] static std::shared_ptr<QnLocale const> createLocale(std::string const& name);
    /// A copy.
    [[nodiscard]] static std::shared_ptr<QnLocale const> createLocale(QnLocale const& locale);
    /// The locale `name`, with `category` replaced. An encoding part of `other` is checked and then dropped:
    /// the encoding is that of `name`. So it is in the following forms.
    [[nodiscard]] static std::shared_ptr<QnLocale const>
    createLocale(std::string const& name, LcCategory category, std::string const& other);
    /// A copy with `category` replaced.
    [[nodiscard]] static std::shared_ptr<QnLocale const>
    createLocale(QnLocale const& locale, LcCategory category, std::string const& other);
    /// A copy with name and modifier of `category` taken from `source`.
    [[nodiscard]] static std::shared_ptr<QnLocale const>
    createLocale(QnLocale const& locale, LcCategory category, QnLocale const& source);
    /// The locale `name` with several categories replaced, in the given order: the last one for a category
    /// counts.
    [[nodiscard]] static std::shared_ptr<QnLocale const>
    createLocale(std::string const& name, std::vector<CategoryContext> const& categories);
    /// A copy with several categories replaced, as above.
    [[nodiscard]] static std::shared_ptr<QnLocale const>
    createLocale(QnLocale const& locale, std::vector<CategoryContext> const& categories);
    /// The locale `name` with "en_US_POSIX" for numbers.
    [[nodiscard]] static std::shared_ptr<QnLocale const> createLocaleWithCForNumeric(std::string const& name);
    /// @}

    /// The category with that name; ASCII case is ignored. Throws `QnLcDataNotFound`. Thread-safe.
    [[nodiscard]] static LcCategory getLcCategory(std::string const& name);
    /// The name of the category. Throws `QnLcDataNotFound` for a value outside 0 to 5. Thread-safe.
    [[nodiscard]] static std::string getLcCategoryName(LcCategory category);

    virtual ~QnLocale();

    /// True when name and modifier of each category and the encoding are the same bytes. The terminal
    /// encoding doesn't count.
    [[nodiscard]] virtual bool operator==(QnLocale const& other) const = 0;
    [[nodiscard]] virtual bool operator!=(QnLocale const& other) const = 0;

    /// The operations with a category throw `QnLcDataNotFound` for a value outside 0 to 5.
    /// @{

    /// The locale name: language, "-" and script if there is one, "_" and region. Where a category was taken
    /// from another locale object it is that object's text, whatever its form.
    [[nodiscard]] virtual std::string shortName(LcCategory category) const = 0;
    /// The language of the name: "sr-Latn" or, without the script, "sr".
    [[nodiscard]] virtual std::string language(LcCategory category, language_tag_option option) const = 0;
    /// The region of the name ("AT"), or empty.
    [[nodiscard]] virtual std::string territory(LcCategory category) const = 0;
    /// The modifiers of the category, each with its sign ("@euro"), or empty.
    [[nodiscard]] virtual std::string modifier(LcCategory category) const = 0;
    /// The name as a language tag: "sr-Latn-BA".
    [[nodiscard]] virtual std::string toLanguageTag(LcCategory category) const = 0;
    /// @}

    /// The text encoding, by its standard name in the locale database.
    [[nodiscard]] virtual std::string encoding() const = 0;
    /// The database's default encoding for the locale of category ctype, whatever `encoding()` is; empty if
    /// there is no such locale.
    [[nodiscard]] virtual std::string localeSpecificEncoding() const = 0;
    /// An optional datum; `LcOptDataType` tells the alternative. Throws `QnLcInvLcArgument` for another type.
    [[nodiscard]] virtual lc_opt_data_value getLcOptData(QnLcOptDataCtx::LcOptDataType type) const = 0;

protected:
    QnLocale() = default;
};

} // namespace fl::i18n
