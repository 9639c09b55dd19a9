/// Objects that follow each other in force, such as the locale databases of the process.
///
/// Readers load the object in force from an atomic pointer, without a lock. They may keep it, so none is ever
/// destroyed, and none changes once it has been in force: who has a correction makes another object, keeps it
/// here, finishes it, and then puts it in force.
///
///     published<locale_database> databases;
///     databases.keep(std::make_unique<locale_database>());   // a changer, holding the changers' mutex
///     databases.put_last_in_force();
///     databases.in_force()->get_locale_name("iw");           // a reader
#pragma once

#include <atomic>
#include <memory>
#include <utility>
#include <vector>

namespace fl::i18n::lcmgmt {

/// One thread at a time may change it; meanwhile any number may ask for what is in force.
template <class T>
class published {
public:
    /// The object in force, or null if there has been none. Thread-safe.
    T* in_force() const noexcept { return in_force_.load(std::memory_order_acquire); }

    /// Keeps the object for good; nobody sees it yet.
    void keep(std::unique_ptr<T> object) { kept_.push_back(std::move(object)); }

    /// The object kept last, whether in force or not; null if there is none.
    T* last() const noexcept { return kept_.empty() ? nullptr : kept_.back().get(); }

    /// There must be one.
    void put_last_in_force() noexcept { in_force_.store(last(), std::memory_order_release); }

private:
    std::vector<std::unique_ptr<T>> kept_;
    std::atomic<T*> in_force_{nullptr};
};

} // namespace fl::i18n::lcmgmt
