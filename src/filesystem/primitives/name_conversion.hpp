/// Names between UTF-16 and UTF-8, and what all conversions of names by ICU share: lengths, and how the
/// status is judged.
#pragma once

#include "support/icu_length.hpp"
#include "support/raise.hpp"
#include "support/sized_result.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/i18n/ustring.hpp>

#include <unicode/utypes.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fl::filesystem::detail {

/// What stands for an unpaired surrogate or for bytes that are not UTF-8: nothing, `substitute_byte` in names
/// that go to the system, or `support::replacement_character` in text that comes from there.
inline constexpr std::int32_t no_substitution = -1;
inline constexpr std::int32_t substitute_byte = 0x1A;

/// Without a converter object. `substitution` is a code point. Both throw `FileNameTooLarge`, and without a
/// substitution `CvtInvalidCharacter`.
std::string name_to_utf8(std::u16string_view name, std::int32_t substitution);
ustring name_from_utf8(std::string_view name, std::int32_t substitution);

/// The text to show for a name: each byte as one unit if it is not UTF-8.
ustring shown(std::string_view name);

/// Throws the exception for a failure status of the conversion of `name`.
[[noreturn]] void throw_conversion_failure(UErrorCode status, std::u16string_view name);
[[noreturn]] void throw_conversion_failure(UErrorCode status, std::string_view name);

[[noreturn]] inline void throw_name_too_large() {
    support::raise(FileNameTooLarge());
}

/// Runs `size = call(dst, capacity, src, src_length, status)` over `source`; the size is that of the whole
/// result, also where it exceeds `capacity`.
template <class To, class From, class Call>
std::size_t convert_name(To* dst, std::size_t capacity, std::basic_string_view<From> source,
                         Call const& call) {
    if (source.empty())
        return 0;
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size = call(dst, support::to_icu_length(capacity, throw_name_too_large), source.data(),
                                   support::to_icu_length(source.size(), throw_name_too_large), &status);
    if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)
        throw_conversion_failure(status, source);
    std::size_t const at_least = sizeof(To) == 1 ? source.size() : 0;
    return support::from_icu_length(size, at_least, throw_name_too_large);
}

/// The whole result as a string.
template <class To, class From, class Call>
std::basic_string<To> converted_name(std::basic_string_view<From> source, Call const& call) {
    return support::sized_result<std::basic_string<To>>(
        source.size(),
        [&](To* dst, std::size_t capacity) { return convert_name(dst, capacity, source, call); },
        [] { support::raise(FileNameConversionFailure()); });
}

} // namespace fl::filesystem::detail
