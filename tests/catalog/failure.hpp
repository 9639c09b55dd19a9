/// What a call throws, checked whole: the exact class and the text.
#pragma once

#include <boost/exception/enable_current_exception.hpp>

#include <string>
#include <typeinfo>

namespace fl::testing {

/// The text of the `E` that `action` throws, in the form that can travel to another thread.
template <class E, class Action>
std::string failure(Action&& action) {
    try {
        action();
    } catch (E const& caught) {
        return typeid(caught) == typeid(boost::exception_detail::clone_impl<E>) ? caught.what()
                                                                                : "not cloneable";
    }
    return "nothing thrown";
}

} // namespace fl::testing
