/// @file
/// The text type of the whole library.
///
/// A `ustring` holds UTF-16: each element is one code unit, and a character outside the Basic Multilingual
/// Plane takes two. Lengths and positions of a `ustring` count code units. Nothing forbids unpaired
/// surrogates in it; each function that cares says what it does with them.
#pragma once

#include <string>

namespace fl {

using ustring = std::basic_string<char16_t>;

namespace i18n {
using fl::ustring;
}

namespace filesystem {
using fl::ustring;
}

} // namespace fl
