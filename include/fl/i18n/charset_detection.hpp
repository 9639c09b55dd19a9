/// @file
/// In which encoding are these bytes?
///
/// ASCII and UTF-8 are recognised by rule, with certainty and at any length. Only what is neither goes to
/// ICU's statistical detector, whose best guess is believed when it is sure enough of itself; otherwise the
/// answer is the encoding of the user's system, which is what unmarked text on that system most likely is in.
///
///     std::string const encoding = detect_charset(data, size, std::clog, u"notes.txt");
///     ustring const text = codecvt_string_to_ustring(encoding, true).convert({data, size});
///
/// The answer can be the system's encoding, which is empty if the locale database has none for the system: a
/// codec then takes the global locale's. If it is one that ICU does not know, the codec throws
/// `CvtInvalidEncodingName`.
///
/// What to expect, with the standard thresholds:
/// - UTF-16 and UTF-32 with a byte order mark are found, also in short texts, and UTF-32BE without one too.
/// - The multi-byte encodings of Japanese and Korean are found, also in short texts. GB18030 and Big5 are
///   mostly found in running text of some length, and seldom in lists of names.
/// - Single-byte encodings are seldom found, as ICU's confidence in them hardly ever reaches 90: the system's
///   encoding is the answer then. Wrong guesses are rare.
/// - UTF-16 without a mark may be found where the text is mostly ASCII. Where all bytes are below 0x80, as in
///   most Russian, it counts as UTF-8. In other languages it gets the system's encoding.
/// - Encodings that are ASCII to the eye, such as ISO-2022-JP, count as ASCII.
///
/// The detector sees the text from its first non-ASCII byte on, unless a NUL comes before: "abc\xFF\xFE" is
/// "UTF-16LE".
///
/// The environment tunes this. Presence counts in the first three, also with an empty value:
/// - `QN_USE_DEFAULT_CHARSET_FOR_ASCII`: ASCII counts as the system's encoding, no longer as "UTF-8".
/// - `QN_NO_CHARSET_DETECTION`: every text gets the answer for ASCII.
/// - `QN_CHARSET_DETECT_DIAG`: the steps are told on the diagnostics stream.
/// - `QN_CHARSET_DETECT_THRESHOLD`, 1 to 100, else 90: the confidence from which ICU's best guess convinces,
///   if it leads the second best by half of that. A confidence of 100 always convinces.
/// - `QN_CHARSET_DETECT_UTF8_THRESHOLD`, 1 to 100, else 80: the best confidence from which a guess of UTF-8
///   in first or second place wins where the first did not convince.
///
/// The first three, and the system's encoding, `QnLocale::system().localeSpecificEncoding()`, are read at the
/// first call and the thresholds when the detector is first needed; later changes have no effect. So call
/// this after start-up, when the system's locale is known.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <iosfwd>
#include <string>

namespace fl::i18n {

/// The encoding of the `len` bytes at `data`: "UTF-8", a name as ICU's detector spells it ("Shift_JIS",
/// "windows-1251"), or the system's encoding, which is empty if the locale database has none for the system.
///
/// No bytes at all, a null `data`, and ASCII, of which one NUL may be the last byte, get the answer for
/// ASCII. A NUL elsewhere is no ASCII; the text can be UTF-8 then, unless it begins with the NUL, as UTF-16
/// may. ICU's EBCDIC guesses ("IBM420_ltr", "IBM420_rtl", "IBM424_ltr", "IBM424_rtl") are never believed.
///
/// `name` tells in the diagnostics what the data is, in the process encoding. `diagnostics` is written to
/// only when diagnostics are on, and is for the caller to guard against other threads; apart from it this is
/// thread-safe.
///
/// Nothing is thrown for any content. Exceptions can come from a shortage of memory, from a process encoding
/// that cannot be opened for `name` (`CvtConversionFailure`), and from the stream.
///
/// ICU's detector sees up to 2^31 - 16 bytes, and reads all of them: text that is neither ASCII nor UTF-8
/// takes up to some 3 s for 100 MB. Of large data that you do not trust, give a prefix that ends with a line,
/// so that no character is cut; 100 kB with some non-ASCII text in it are enough.
[[nodiscard]] FL_I18N_EXPORT std::string detect_charset(char const* data, unsigned long len,
                                                        std::ostream& diagnostics, ustring const& name);

} // namespace fl::i18n
