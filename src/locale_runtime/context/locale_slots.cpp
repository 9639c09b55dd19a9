#include "locale_runtime/context/locale_slots.hpp"

#include <utility>

namespace fl::i18n::lcmgmt {

void locale_slots::append(std::unique_ptr<global_locale_slot> slot) {
    slots_.keep(std::move(slot));
    slots_.put_last_in_force();
    ++size_;
}

void locale_slots::replace_last(std::unique_ptr<global_locale_slot> slot) {
    bool const only_classic = size_ < 2;
    append(std::move(slot));
    if (!only_classic)
        --size_;
}

} // namespace fl::i18n::lcmgmt
