/// @file
/// How two texts are to be regarded as equal, as one small value.
///
/// Whether case counts, whether normalisation counts and in which form, whether a locale counts. Functions
/// that compare or match texts for a caller who knows the rules, those of a volume for example, take such a
/// value:
///
///     using mode = character_handling_mode_context;
///     mode const as_on_disk(mode::case_insensitive_mode | mode::normalized_decompose_mode);
///     as_on_disk.is_case_sensitive_mode(); // false
///
/// Immutable: any number of threads may share one.
#pragma once

#include <fl/i18n/ctype_exceptions.hpp>
#include <fl/i18n/export.hpp>

namespace fl::i18n {

class FL_I18N_EXPORT character_handling_mode_context {
public:
    /// The values that a mask combines. Its bits are 1 (case-insensitive), 2 (normalised), 4 (decomposed,
    /// with 2), 8 (by a locale) and 16 (normalisation-insensitive).
    /// @{
    static constexpr unsigned int default_mode = 0;                    ///< unit by unit
    static constexpr unsigned int case_insensitive_mode = 1;           ///< case does not count
    static constexpr unsigned int normalized_compose_mode = 2;         ///< texts are in NFC
    static constexpr unsigned int normalized_decompose_mode = 6;       ///< texts are in NFD
    static constexpr unsigned int locale_mode = 8;                     ///< a locale's rules count
    static constexpr unsigned int normalization_insensitive_mode = 16; ///< equivalent texts are equal
    /// @}

    /// Takes any mask below 32, also 4 alone, which says nothing by itself. Throws `CtypeInvalidArgument` for
    /// a larger one. Not explicit, so that the constants serve as arguments.
    character_handling_mode_context(unsigned int mask); // NOLINT(google-explicit-constructor)

    /// The mask as given.
    [[nodiscard]] unsigned int mask() const noexcept { return mask_; }

    [[nodiscard]] bool is_case_sensitive_mode() const noexcept {
        return (mask_ & case_insensitive_mode) == 0;
    }
    /// Bit 2 without bit 4.
    [[nodiscard]] bool is_normalized_compose_mode() const noexcept {
        return (mask_ & normalized_decompose_mode) == normalized_compose_mode;
    }
    /// Bits 2 and 4 together.
    [[nodiscard]] bool is_normalized_decompose_mode() const noexcept {
        return (mask_ & normalized_decompose_mode) == normalized_decompose_mode;
    }
    [[nodiscard]] bool is_locale_dependent_mode() const noexcept { return (mask_ & locale_mode) != 0; }
    [[nodiscard]] bool is_normalization_insensitive_mode() const noexcept {
        return (mask_ & normalization_insensitive_mode) != 0;
    }

private:
    unsigned int mask_;
};

} // namespace fl::i18n
