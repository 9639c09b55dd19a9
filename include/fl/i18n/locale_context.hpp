/// @file
/// The process-wide context behind `QnLocale`.
///
/// One `QnLocaleCtx` owns the locale database, the locale found on the system, every locale that has been the
/// global one, and the event log. It comes into being at the first call that needs it, with built-in
/// knowledge only: "en_US_POSIX", messages "en_US", encoding "UTF-8". Start-up then adds what the
/// installation and the user's system say. Most callers have no business with it: `QnLocale::global()` is the
/// way to the current locale, and <fl/i18n/startup.hpp> has the functions that start and steer it.
///
///     auto* const context = fl::i18n::lcmgmt::get_qnlocale_context();
///     context->getLcCategory("Messages");                       // QnLocale::messages
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
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fl::i18n {

class QnLocaleImpl;

namespace lcmgmt {

class global_locale_slot;
class locale_initialization_context;
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

    /// The database in force. Start-up replaces the built-in one by one that the XML database has corrected;
    /// the former one stays as it is, for those who are reading it.
    locale_database const& database() const noexcept { return *database_.load(std::memory_order_acquire); }
    /// For locales, which ask the database that is in force, whenever they were made.
    std::atomic<locale_database const*> const& database_in_force() const noexcept { return database_; }
    LcStatusCtx const& status() const noexcept { return status_; }

    /// The result of `action(record)`, called with the context's mutex held, where `record` is the
    /// `locale_context const&` that says what is known of the system and its environment. While the action
    /// runs neither start-up nor a change of the global locale does, so it must not ask for either.
    template <class Action>
    auto with_discovery(Action&& action) const {
        std::lock_guard const lock(mutex_);
        return std::forward<Action>(action)(static_cast<locale_context const&>(*discovery_));
    }

    /// The locales behind `QnLocale::classic()`, `global()` and `system()`. They throw `QnLcDataNotFound` if
    /// setting up the context has failed before they existed.
    QnLocale const& classic() const;
    QnLocale const& system() const;
    global_locale_slot& current_slot() const;

    /// Makes the slot's locale the global one. Former slots stay as they are, for those who still read them.
    void publish_slot(std::unique_ptr<global_locale_slot> slot);
    /// How many locales the list holds: the classic one first, the global one last.
    std::size_t slot_count() const;

    /// Adds the entry "title - text" to the event log; an ICU error code follows the text without a gap.
    void log_event(std::string_view title, std::string_view text);
    void log_event(std::string_view title, std::string_view text, int icu_code);
    /// Adds an entry that has its final form.
    void log_entry(std::string entry);
    /// A copy of the log, oldest entry first.
    std::vector<std::string> event_log() const;
    /// @}

    /// @name Start-up and changes of the global locale
    /// The functions of <fl/i18n/startup.hpp> call these, and say what they do.
    /// @{
    void initLocaleMgmt();
    void disable_l10n_rsc();
    bool get_l10n_rsc_status() const;
    void lock_current_locale();
    void change_current_locale(QnLocale const& locale);
    bool set_lc_messages(std::string const& name);
    bool setLocale(std::string const& name);
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
    QnLocaleImpl& system_locale() const;

    // With the mutex held, each of them.
    void append_slot(std::unique_ptr<global_locale_slot> slot);
    void retire_last_slot();
    void load_database(std::string const& path);
    void put_last_database_in_force() noexcept;
    void initGlobalLocale();
    void publish_first_locale();
    void set_system_defaults(std::string const& encoding, std::string const& locale);
    void create_new_global_context(bool english_messages);
    void disable_messages_in_environment();
    bool has_english_messages() const;

    void set_database_path(std::string path);

    LcStatusCtx status_;
    // What has ever been published is kept: somebody may hold a reference. The last one is in force.
    std::vector<std::unique_ptr<locale_database>> databases_;   // by mutex_
    std::vector<std::unique_ptr<QnLocaleImpl>> system_locales_; // by mutex_, as are the following
    std::vector<std::unique_ptr<global_locale_slot>> slots_;    // the first is the classic locale's
    std::vector<std::unique_ptr<global_locale_slot>> slot_graveyard_;
    std::unique_ptr<locale_context> discovery_;
    // Defined where discovery is, above this class's own layer, as is its deleter.
    std::unique_ptr<locale_initialization_context, void (*)(locale_initialization_context*)> initialization_{
        nullptr, nullptr};
    bool locale_locked_ = false;
    std::atomic<bool> l10n_enabled_{true}; // changed by mutex_
    QnLocale const* classic_ = nullptr;    // set before the context is published
    std::atomic<locale_database const*> database_{nullptr};
    std::atomic<global_locale_slot*> current_slot_{nullptr};
    std::atomic<QnLocale const*> system_{nullptr};
    mutable std::mutex mutex_;         // orders start-up and all changes of the global locale
    mutable std::mutex records_mutex_; // guards the next two, and is never held while another lock is taken
    std::vector<std::string> event_log_;
    std::string database_path_;
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

/// True if input from the terminal has the terminal's encoding, as it has on every system served so far.
FL_I18N_EXPORT bool is_term_encoding_consistent() noexcept;

} // namespace lcmgmt
} // namespace fl::i18n
