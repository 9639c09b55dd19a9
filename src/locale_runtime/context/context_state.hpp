/// Everything that the process-wide context holds.
///
/// It is built from the built-in tables at first use, and never destroyed. What readers ask for all the time,
/// the database in force, the current and the system locale, they load from atomic pointers. All changes are
/// made under one mutex, which is not recursive: nothing that runs under it may call what takes it. The log,
/// the status and the database path have leaf mutexes of their own.
///
///     get_context_state().log.add("title", "text");
///     get_context_state().database().get_locale_name("iw");      // "he_IL"
#pragma once

#include "locale_runtime/context/category_names.hpp"
#include "locale_runtime/context/event_log.hpp"
#include "locale_runtime/context/locale_slots.hpp"
#include "locale_runtime/context/published.hpp"
#include "support/mutex.hpp"

#include <fl/i18n/discovery_record.hpp>
#include <fl/i18n/lc_status.hpp>
#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

namespace fl::i18n::lcmgmt {

class locale_initialization_context;

/// A class of its own, so that a public header can name it.
class published_databases final : public published<locale_database> {};

/// Start-up and the changes of the global locale, which work on this, belong to the layer above.
struct context_state {
    /// Has the database and the environment, but no locale yet.
    context_state();
    ~context_state();
    context_state(context_state const&) = delete;
    context_state& operator=(context_state const&) = delete;

    /// One with the built-in locale, as far as that can be set up.
    static std::unique_ptr<context_state> make();

    // The first five take no mutex: what they ask for is behind an atomic pointer, or never changes.

    /// The database in force. Start-up replaces the built-in one by one that the XML database has corrected;
    /// the former one stays as it is, for those who are reading it.
    locale_database const& database() const noexcept FL_NO_THREAD_SAFETY_ANALYSIS {
        return *databases.in_force();
    }
    /// For locales, which ask the database that is in force, whenever they were made.
    published_databases const& database_source() const noexcept FL_NO_THREAD_SAFETY_ANALYSIS {
        return databases;
    }
    /// The locales behind `QnLocale::global()`, `system()` and `classic()`. They throw `QnLcDataNotFound` if
    /// setting up the context has failed before they existed.
    /// @{
    global_locale_slot& current_slot() const FL_NO_THREAD_SAFETY_ANALYSIS;
    QnLocale const& system() const FL_NO_THREAD_SAFETY_ANALYSIS;
    QnLocale const& classic() const;
    /// @}

    /// The result of `action(record)`, called with the mutex held, where `record` is the
    /// `locale_context const&` that says what is known of the system and its environment. While the action
    /// runs neither start-up nor a change of the global locale does, so it must not ask for either.
    template <class Action>
    auto with_discovery(Action&& action) const FL_EXCLUDES(mutex) {
        support::mutex_lock const lock(mutex);
        return std::forward<Action>(action)(std::as_const(discovery));
    }

    /// Makes the slot's locale the global one. Former slots stay as they are, for those who still read them.
    void publish_slot(std::unique_ptr<global_locale_slot> slot) FL_EXCLUDES(mutex);
    std::size_t slot_count() const FL_EXCLUDES(mutex);

    /// The file that start-up tried to load, empty before it has.
    /// @{
    std::string database_path() const FL_EXCLUDES(path_mutex);
    void set_database_path(std::string path) FL_EXCLUDES(path_mutex);
    /// @}

    /// Keeps a locale for what will be found on the system, on the database in force, with the built-in
    /// names. Its final content comes during start-up, and only then is it handed out.
    void make_system_locale() FL_REQUIRES(mutex);
    /// The one made last. Throws `QnLcDataNotFound` if there is none.
    QnLocaleImpl& system_locale() const FL_REQUIRES(mutex);

    QnLocaleCtx front{*this}; // what callers of the library see of all this
    event_log log;
    LcStatusCtx status;
    category_names names; // filled before the context is published

    mutable support::mutex mutex; // orders start-up and all changes of the global locale
    published_databases databases FL_GUARDED_BY(mutex);
    published<QnLocaleImpl> system_locales FL_GUARDED_BY(mutex);
    locale_slots slots FL_GUARDED_BY(mutex);
    locale_context discovery FL_GUARDED_BY(mutex);
    // Shared only in name: this kind of pointer can own what is defined above this layer.
    std::shared_ptr<locale_initialization_context> initialization FL_GUARDED_BY(mutex);
    bool locale_locked FL_GUARDED_BY(mutex) = false;
    std::atomic<bool> l10n_enabled{true}; // changed under the mutex, read without it, too

private:
    void set_up();
    void make_classic_slot();
    void set_icu_defaults();

    QnLocale const* classic_ = nullptr; // set before the context is published
    mutable support::mutex path_mutex;  // never held while another lock is taken
    std::string database_path_ FL_GUARDED_BY(path_mutex);
};

/// The state of the process. As `get_qnlocale_context()`.
context_state& get_context_state();

} // namespace fl::i18n::lcmgmt
