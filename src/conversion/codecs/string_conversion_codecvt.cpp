// string_conversion.hpp: the converters of the process, those of ICU for its encoding and objects for the
// terminal.

#include "locale_runtime/context/global_locale_slot.hpp"
#include "support/raise.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <unicode/ucnv.h>

#include <utility>
#include <variant>

namespace fl::i18n {

namespace lcmgmt {

namespace {

using owned_converter = std::unique_ptr<UConverter, lcctype::converter_close>;

/// A clone of the slot's master, or null. Cloning only reads the master, so threads may clone at the same
/// time.
owned_converter clone_master(global_locale_slot const& slot) {
    UConverter* const master = slot.master();
    if (!master)
        return nullptr;
    UErrorCode status = U_ZERO_ERROR;
    owned_converter clone(ucnv_clone(master, &status));
    return U_SUCCESS(status) ? std::move(clone) : nullptr;
}

owned_converter open_process_encoding() {
    UErrorCode status = U_ZERO_ERROR;
    owned_converter opened(ucnv_open(QnLocale::global().encoding().c_str(), &status));
    if (U_FAILURE(status) || !opened)
        support::raise(CvtConversionFailure());
    return opened;
}

/// For the slot's encoding where it has a master.
owned_converter converter_for(global_locale_slot const& slot) {
    owned_converter clone = clone_master(slot);
    return clone ? std::move(clone) : open_process_encoding();
}

} // namespace

owned_converter clone_codecvt() {
    return converter_for(current_global_locale_slot());
}

UConverter* get_cached_codecvt() {
    // The cache lives in the slot, so a change of the locale leaves every thread with an empty one.
    global_locale_slot& slot = current_global_locale_slot();
    if (!slot.thread_converter().get()) {
        auto context = std::make_unique<lcctype::code_converter_context>();
        context->converter = converter_for(slot);
        slot.thread_converter().reset(context.release());
    }
    return slot.thread_converter()->converter.get();
}

} // namespace lcmgmt

namespace {

/// The converter for one of the terminal's encodings; it substitutes what it cannot convert.
template <class Codecvt>
std::unique_ptr<Codecvt> create_codecvt(QnLcOptDataCtx::LcOptDataType type) {
    return std::make_unique<Codecvt>(std::get<std::string>(QnLocale::global().getLcOptData(type)), true);
}

} // namespace

std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_to_ustring() {
    return create_codecvt<codecvt_string_to_ustring>(QnLcOptDataCtx::terminal_encoding);
}

std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal() {
    return create_codecvt<codecvt_ustring_to_string>(QnLcOptDataCtx::terminal_encoding);
}

std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_input_to_ustring() {
    return create_codecvt<codecvt_string_to_ustring>(QnLcOptDataCtx::terminal_input_encoding);
}

std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal_output() {
    return create_codecvt<codecvt_ustring_to_string>(QnLcOptDataCtx::terminal_output_encoding);
}

} // namespace fl::i18n
