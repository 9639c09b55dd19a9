/// The locales that are, and have been, the global one.
///
/// They form a list: the classic locale first, the current one last. A locale that is replaced leaves the
/// list, but never the memory, since somebody may hold a reference to it (global_locale_slot.hpp).
#pragma once

#include "locale_runtime/context/global_locale_slot.hpp"
#include "locale_runtime/context/published.hpp"

#include <cstddef>
#include <memory>
#include <utility>

namespace fl::i18n::lcmgmt {

/// One thread at a time may change it; meanwhile any number may ask for the current slot.
class locale_slots {
public:
    /// The slot of the current locale; null while there is none. Thread-safe, without a lock.
    global_locale_slot* current() const noexcept { return slots_.in_force(); }

    /// Adds the slot to the list and makes it the current one.
    void append(std::unique_ptr<global_locale_slot> slot) {
        slots_.keep(std::move(slot));
        slots_.put_last_in_force();
        ++size_;
    }

    /// Likewise, but in the place of the last one. The classic locale is not replaced: a list that holds no
    /// other grows.
    void replace_last(std::unique_ptr<global_locale_slot> slot) {
        bool const only_classic = size_ < 2;
        append(std::move(slot));
        if (!only_classic)
            --size_;
    }

    /// How many are in the list.
    std::size_t size() const noexcept { return size_; }

private:
    published<global_locale_slot> slots_; // also those that have left the list
    std::size_t size_ = 0;
};

} // namespace fl::i18n::lcmgmt
