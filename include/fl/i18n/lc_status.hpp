/// @file
/// How far start-up has come, as the steps of start-up note it.
///
///     fl::i18n::lcmgmt::LcStatusCtx status;
///     status.code();                           // 2: nothing has happened yet
///     status.set(3, "Invalid locale name.");   // code and warning together
///
/// The process has one such object, which `QnLcUtil` reports on (<fl/i18n/locale_status.hpp>). A caller who
/// takes the steps of discovery on his own (<fl/i18n/locale_discovery.hpp>) brings another.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace fl::i18n::lcmgmt {

/// A code: 0 initialised, 1 the locale database could not be loaded, 2 not initialised, 3 the user's locale
/// was unusable; and a warning, an English sentence, which may be there whatever the code is. Thread-safe.
class FL_I18N_EXPORT LcStatusCtx {
public:
    /// Code 2 without a warning.
    LcStatusCtx();
    ~LcStatusCtx();
    LcStatusCtx(LcStatusCtx const&) = delete;
    LcStatusCtx& operator=(LcStatusCtx const&) = delete;

    /// Without a lock.
    [[nodiscard]] std::int32_t code() const noexcept;
    [[nodiscard]] std::string warning() const;

    /// Any code is taken as it is; the first form leaves the warning alone.
    /// @{
    void set_code(std::int32_t code) noexcept;
    void set(std::int32_t code, std::string warning);
    /// @}

private:
    struct record;

    std::unique_ptr<record> record_;
};

} // namespace fl::i18n::lcmgmt
