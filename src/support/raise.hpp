/// The one way in which this library throws.
///
/// What is thrown is `boost::exception_detail::clone_impl<E>`: handlers catch `E`, and the object can travel
/// to another thread in a `boost::exception_ptr` as well as in a `std::exception_ptr`.
#pragma once

#include <boost/exception/enable_current_exception.hpp>

namespace fl::support {

template <class E>
[[noreturn]] void raise(E const& exception) {
    throw boost::enable_current_exception(exception);
}

} // namespace fl::support
