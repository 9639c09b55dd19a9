/// @file
/// The process-wide context behind `QnLocale`.
///
/// One `QnLocaleCtx` stands for the locale database, the locale found on the system, every locale that has
/// been the global one, and the event log. It comes into being at the first call that needs it, with built-in
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

#include <map>
#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

struct context_state;

/// The questions that the context answers. Thread-safe. The object is never destroyed: code that runs during
/// process exit may still ask.
class FL_I18N_EXPORT QnLocaleCtx {
public:
    QnLocaleCtx(QnLocaleCtx const&) = delete;
    QnLocaleCtx& operator=(QnLocaleCtx const&) = delete;

    /// Names of categories and of optional data; ASCII case of a name is ignored. Each throws
    /// `QnLcDataNotFound` for what it doesn't know.
    /// @{
    [[nodiscard]] QnLocale::LcCategory getLcCategory(std::string_view name) const;
    [[nodiscard]] std::string getLcCatName(QnLocale::LcCategory category) const;
    [[nodiscard]] QnLcOptDataCtx::LcOptDataType getOptDataType(std::string_view name) const;
    /// @}

    /// Empty, or the one entry "xml_locale_database_path" with the file that start-up tried to load, in the
    /// form that the file system takes.
    [[nodiscard]] std::map<std::string, std::string> getDataPathNames() const;

private:
    friend struct context_state;

    explicit QnLocaleCtx(context_state& state) noexcept : state_(state) {}

    context_state& state_; // which this object is a part of
};

/// The context, built at the first call; threads that call at the same time wait for it. Later calls read one
/// atomic pointer. If it can't be built at all the exception reaches the caller, and the next call tries
/// again; a failure while its built-in locale is set up leaves a context without that part. Never null.
/// Thread-safe.
FL_I18N_EXPORT QnLocaleCtx* get_qnlocale_context();

/// The object of `QnLocale::global()`; it stays valid until the process ends. Thread-safe.
[[nodiscard]] FL_I18N_EXPORT QnLocale const* get_locale_object();

/// True if input from the terminal has the terminal's encoding, as it has on every system served so far.
[[nodiscard]] FL_I18N_EXPORT bool is_term_encoding_consistent() noexcept;

} // namespace fl::i18n::lcmgmt
