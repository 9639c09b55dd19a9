/// @file
/// Whether a name is fit for a volume, asked before it is used.
///
///     auto const asked = static_cast<validation_id>(colon_check | zero_unit_check | component_length_check);
///     if (validate_pathname(name, asked, rules_of_the_volume) != valid_pathname) ...
#pragma once

#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>

namespace fl::filesystem {

/// A set of checks, one bit each. Sets are made by a cast; bits without a name are ignored.
enum validation_id : std::uint32_t {
    valid_pathname = 0,         ///< as a result: no check has failed
    non_character_check = 1,    ///< none of Unicode's 66 noncharacters; always made
    colon_check = 2,            ///< no ":"
    zero_unit_check = 4,        ///< no unit 0
    path_length_check = 16,     ///< the whole is shorter than 1024
    component_length_check = 32 ///< no component between separators is longer than 255
};

/// Makes the checks `ids`, on the text alone, and returns the bit of the first that fails, in the order 4, 2,
/// 1, 16, 32, or `valid_pathname`. An empty name passes them all. May be called from any thread.
///
/// Lengths count what the volume stores. By a mode with `is_normalized_decompose_mode()` these are the UTF-16
/// units of the name in NFD; by any other mode the bytes of the name in UTF-8, where an unpaired surrogate
/// takes one byte, as when a file is opened. A length beyond a signed 32-bit integer throws
/// `FileNameTooLarge`.
[[nodiscard]] FL_I18N_EXPORT validation_id validate_pathname(
    ustring const& name, validation_id ids, fl::i18n::character_handling_mode_context const& mode);

} // namespace fl::filesystem
