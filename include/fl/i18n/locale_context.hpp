/// @file
/// The process-wide context behind `QnLocale`.
///
/// One `QnLocaleCtx` owns the locale database, the locale found on the system, every locale that has been the
/// global one, and the event log. It comes into being at the first call that needs it, with built-in
/// knowledge only: "en_US_POSIX", messages "en_US", encoding "UTF-8". Start-up then adds what the
/// installation and the user's system say. Most callers have no business with it: `QnLocale::global()` is the
/// way to the current locale.
///
///     auto* const context = fl::i18n::lcmgmt::get_qnlocale_context();
///     context->getLcCategory("Messages");                       // QnLocale::messages
///     fl::i18n::lcmgmt::get_encoding_name_from_alias("UTF8");   // "UTF-8"
///
/// The environment variables QNLOCALE_LCDATA_PATH, QNLOCALE_LCDATA_FILENAME, QNLOCALE_L10N_CONTROL and
/// QNLOCALE_TERMINAL_ENCODING are read when the context is built; later changes of them go unnoticed.
///
/// Building the context also sets two defaults of ICU: the converter ("UTF-8") and the locale
/// ("en_US_POSIX").
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_database.hpp>

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace fl::i18n {

class QnLocaleImpl;

namespace lcmgmt {

class global_locale_slot;
struct locale_context;

/// How far start-up has come: 0 initialised, 1 the locale database could not be loaded, 2 not initialised,
/// 3 the user's locale was unusable; and a warning, which may be there whatever the code is. Thread-safe.
class FL_I18N_EXPORT LcStatusCtx {
public:
    std::int32_t code() const noexcept { return code_.load(std::memory_order_acquire); }
    std::string warning() const;

    void set_code(std::int32_t code) noexcept { code_.store(code, std::memory_order_release); }
    void set(std::int32_t code, std::string warning);

private:
    std::atomic<std::int32_t> code_{2};
    mutable std::mutex mutex_; // guards warning_, and is never held while another lock is taken
    std::string warning_;
};

/// Thread-safe. The object is never destroyed: code that runs during process exit may still ask for the
/// locale.
class FL_I18N_EXPORT QnLocaleCtx {
public:
    ~QnLocaleCtx();
    QnLocaleCtx(QnLocaleCtx const&) = delete;
    QnLocaleCtx& operator=(QnLocaleCtx const&) = delete;

    /// Names of categories and of optional data; ASCII case of a name is ignored. Each throws
    /// `QnLcDataNotFound` for what it doesn't know.
    /// @{
    QnLocale::LcCategory getLcCategory(std::string_view name) const;
    std::string getLcCatName(QnLocale::LcCategory category) const;
    QnLcOptDataCtx::LcOptDataType getOptDataType(std::string_view name) const;
    /// @}

    /// Empty, or the one entry "xml_locale_database_path" with the file that start-up tried to load, in the
    /// form that the file system takes.
    std::map<std::string, std::string> getDataPathNames() const;

    /// @name For the library's own layers
    /// @{

    /// Has the database and the environment, but no locale yet; `make` adds the rest, as far as it can. Both
    /// are for `get_qnlocale_context`.
    QnLocaleCtx();
    static std::unique_ptr<QnLocaleCtx> make();

    locale_database const& database() const noexcept { return database_; }
    LcStatusCtx const& status() const noexcept { return status_; }
    /// What is known of the system and its environment.
    locale_context const& discovery() const noexcept { return *discovery_; }

    /// The locales behind `QnLocale::classic()`, `global()` and `system()`. They throw `QnLcDataNotFound` if
    /// setting up the context has failed before they existed.
    QnLocale const& classic() const;
    QnLocale const& system() const;
    global_locale_slot& current_slot() const;

    /// Makes the slot's locale the global one. Former slots stay as they are, for those who still read them.
    void publish_slot(std::unique_ptr<global_locale_slot> slot);

    /// Adds the entry "title - text" to the event log; an ICU error code follows the text without a gap.
    void log_event(std::string_view title, std::string_view text);
    void log_event(std::string_view title, std::string_view text, int icu_code);
    /// Adds an entry that has its final form.
    void log_entry(std::string entry);
    /// A copy of the log, oldest entry first.
    std::vector<std::string> event_log() const;
    /// @}

private:
    template <class T>
    using name_table = std::map<std::string, T, std::less<>>;

    void initQnLcCtx();
    void make_classic_slot();
    void make_system_locale();
    void set_icu_defaults();
    void initCatNameTbl();
    void initOptDataTypeTbl();
    void append_slot(std::unique_ptr<global_locale_slot> slot);

    LcStatusCtx status_;
    std::string database_path_;
    locale_database database_;
    std::unique_ptr<locale_context> discovery_;
    std::unique_ptr<QnLocaleImpl> system_locale_;            // not published before it has its final content
    std::vector<std::unique_ptr<global_locale_slot>> slots_; // by mutex_; a slot is never freed
    QnLocale const* classic_ = nullptr;                      // set before the context is published
    std::atomic<global_locale_slot*> current_slot_{nullptr};
    std::atomic<QnLocale const*> system_{nullptr};
    std::mutex mutex_;                   // orders all changes of the global locale
    mutable std::mutex event_log_mutex_; // never held while another lock is taken
    std::vector<std::string> event_log_;
    name_table<QnLocale::LcCategory> category_by_name_;
    std::map<QnLocale::LcCategory, std::string> name_by_category_;
    name_table<QnLcOptDataCtx::LcOptDataType> optional_data_by_name_;
};

/// The context, built at the first call; threads that call at the same time wait for it. Later calls read one
/// atomic pointer. If it can't be built at all the exception reaches the caller, and the next call tries
/// again; a failure while its built-in locale is set up leaves a context without that part. Never null.
/// Thread-safe.
FL_I18N_EXPORT QnLocaleCtx* get_qnlocale_context();

/// The object of `QnLocale::global()`; it stays valid until the process ends. Thread-safe.
FL_I18N_EXPORT QnLocale const* get_locale_object();

/// The standard name of an encoding by any of its names in the locale database of the process; ASCII case is
/// ignored. An unknown name is answered with the name itself, or, in the second form, with an empty text.
/// Thread-safe.
/// @{
FL_I18N_EXPORT std::string get_encoding_name_from_alias(std::string_view name);
FL_I18N_EXPORT std::string get_qn_standard_encoding_name_from_alias(std::string_view name);
/// @}

/// True if input from the terminal has the terminal's encoding, as it has on every system served so far.
FL_I18N_EXPORT bool is_term_encoding_consistent() noexcept;

} // namespace lcmgmt
} // namespace fl::i18n
