#include "locale_runtime/context/global_locale_slot.hpp"

#include "locale_runtime/context/context_state.hpp"

#include <unicode/ucnv.h>

#include <utility>

namespace fl::i18n::lcmgmt {

namespace {

lcctype::code_converter_context open_master(std::string const& encoding) {
    lcctype::code_converter_context master;
    UErrorCode status = U_ZERO_ERROR;
    master.converter.reset(ucnv_open(encoding.c_str(), &status));
    if (U_FAILURE(status))
        master.converter.reset();
    return master;
}

} // namespace

global_locale_slot::global_locale_slot(std::unique_ptr<QnLocale const> locale)
    : locale_(std::move(locale)),
      master_(open_master(locale_->encoding())) {}

global_locale_slot::~global_locale_slot() = default;

global_locale_slot& current_global_locale_slot() {
    return get_context_state().current_slot();
}

} // namespace fl::i18n::lcmgmt
