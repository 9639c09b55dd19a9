/// What a call throws, checked whole: the exact class and the text.
#pragma once

#include <boost/exception/enable_current_exception.hpp>

#include <string>
#include <typeinfo>

namespace fl::testing {

/// The text of the `E` that `action(arguments...)` throws, in the form that can travel to another thread.
template <class E, class Action, class... Arguments>
std::string failure(Action const& action, Arguments const&... arguments) try {
    action(arguments...);
    return "nothing thrown";
} catch (E const& e) {
    return typeid(e) == typeid(boost::exception_detail::clone_impl<E>) ? e.what() : "not cloneable";
}

} // namespace fl::testing
