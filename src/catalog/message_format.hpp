/// Message patterns and their holes, on top of ICU's `MessageFormat`.
///
/// Hole names come in three forms: a number ("0"), a custom hole (number, "_", custom type: "1_date"), and a
/// word, which is any name that begins with a letter.
#pragma once

#include <fl/i18n/idbase.hpp>
#include <fl/i18n/ustring.hpp>

#include <unicode/msgfmt.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <vector>

namespace fl::i18n::detail {

/// A numbered hole's name, taken apart.
struct hole_name_info {
    ustring custom_type; // empty if the name is a number alone
    std::int32_t number;
};

using hole_names = std::vector<icu::UnicodeString>;

/// The formatter for a pattern, with the rules of en_US_POSIX. Lone apostrophes stand for themselves. Throws
/// `MessageFormatIncorrect` for a pattern that ICU refuses or that nests beyond reason.
icu::MessageFormat makeMessageFormat(ustring const& message);

/// The names of the holes in the order in which values are assigned to them: words as in the pattern, with
/// repeats; numbers and custom holes by number, those of one number as in the pattern, where equal names next
/// to each other count once. Throws `MessageFormatIncorrect` if words are mixed with others, and what
/// `std::stoul` throws for a name that is no word and begins with no number.
hole_names listHoleNames(icu::MessageFormat& format);

/// True if the name begins with a letter.
bool is_word(icu::UnicodeString const& name);

/// Throws what `std::stoul` throws, and `boost::numeric::positive_overflow` for a number of 2^31 and more.
hole_name_info parseHoleName(icu::UnicodeString const& name);

/// The message with `holes[i]` in the hole `(*names)[i]` or, if `names` is null, in the hole "{i}". Throws
/// `MessageFormatIncorrect` if ICU cannot put a value in its hole.
ustring formatHoles(icu::MessageFormat const& format, std::vector<hole_value> const& holes,
                    hole_names const* names);

} // namespace fl::i18n::detail
