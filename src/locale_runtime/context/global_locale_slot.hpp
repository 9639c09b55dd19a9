/// One global locale, current or former, with the converters for its encoding.
///
/// Readers load the current slot from an atomic pointer and use it without a lock, so a slot is never freed
/// and never changed. That also keeps the thread-specific pointers sound: they are told apart by their
/// address, and a slot at the address of a freed one would serve a thread the converter of another locale.
#pragma once

#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/locale.hpp>

#include <boost/thread/tss.hpp>

#include <memory>

namespace fl::i18n::lcmgmt {

class global_locale_slot {
public:
    /// Opens the master converter for the locale's encoding. ICU not knowing that encoding is no failure.
    explicit global_locale_slot(std::unique_ptr<QnLocale const> locale);
    ~global_locale_slot();

    global_locale_slot(global_locale_slot const&) = delete;
    global_locale_slot& operator=(global_locale_slot const&) = delete;

    QnLocale const& locale() const noexcept { return *locale_; }

    /// The master converter, or null. Threads share it, so it may be cloned and nothing else.
    UConverter* master() const noexcept { return master_.converter.get(); }

    /// The calling thread's own converter, null until the thread has stored one; closed at the thread's end.
    boost::thread_specific_ptr<lcctype::code_converter_context>& thread_converter() noexcept {
        return thread_converter_;
    }

private:
    std::unique_ptr<QnLocale const> locale_;
    lcctype::code_converter_context master_;
    boost::thread_specific_ptr<lcctype::code_converter_context> thread_converter_;
};

/// The slot behind `QnLocale::global()`, at the price of two atomic loads. Thread-safe.
global_locale_slot& current_global_locale_slot();

} // namespace fl::i18n::lcmgmt
