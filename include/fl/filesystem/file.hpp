/// @file
/// Files by `ustring` name.
///
/// `fopen` and `freopen` mirror the C library: they report by `errno` and a null pointer, also where a name
/// can't be converted, and but for what a conversion of the caller's throws they never throw for bad input.
///
///     if (std::FILE* file = fl::filesystem::fopen(u"notes.txt", "r")) ...
///
/// A name given as `ustring` is put in native form first and must not end in a separator; a `upath` is taken
/// as it stands. Every function may be called from any thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/core/noncopyable.hpp>

#include <cstdio>
#include <fstream>
#include <string>

namespace fl::filesystem {

/// Opens the file `name`, `mode` as fopen(3) takes it, and returns the stream, to be closed by `std::fclose`.
///
/// Null on failure, with `errno`: `EINVAL` for a name that is empty or holds a zero unit, and for such a
/// mode; `EISDIR` for a `ustring` that ends in a separator; else what fopen(3) sets. An unpaired surrogate
/// goes to the system as the byte 26 (U+001A).
[[nodiscard]] FL_I18N_EXPORT std::FILE* fopen(ustring const& name, std::string const& mode);
[[nodiscard]] FL_I18N_EXPORT std::FILE* fopen(upath const& path, std::string const& mode);

/// The same with the caller's conversion from name to bytes. A name that it refuses gives `ENAMETOOLONG` if
/// the size is the reason, otherwise `ENOENT`; out of memory gives `ENOMEM`. `EINVAL` if a zero byte comes
/// out. Other exceptions pass through, and so do those that have no `errno` value here: `FileIsDirectory`,
/// `PathNameComparisonFailure` and `TempEnvNotSpecified`.
[[nodiscard]] FL_I18N_EXPORT std::FILE* fopen(ustring const& name, std::string const& mode,
                                              fl::i18n::converter<char, char16_t> const& to_bytes);
[[nodiscard]] FL_I18N_EXPORT std::FILE* fopen(upath const& path, std::string const& mode,
                                              fl::i18n::converter<char, char16_t> const& to_bytes);

/// Opens the file in the place of `stream`'s, by freopen(3), with the failures of `fopen`. A null `stream`
/// gives `EINVAL` before anything else. Where a name or mode is refused here, `stream` stays open; a failure
/// of freopen(3) itself has closed it.
FL_I18N_EXPORT std::FILE* freopen(ustring const& name, std::string const& mode, std::FILE* stream);
FL_I18N_EXPORT std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream);
FL_I18N_EXPORT std::FILE* freopen(ustring const& name, std::string const& mode, std::FILE* stream,
                                  fl::i18n::converter<char, char16_t> const& to_bytes);
FL_I18N_EXPORT std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream,
                                  fl::i18n::converter<char, char16_t> const& to_bytes);

/// A stream for reading a file by its narrow name, as `detail::make_native_access_form_i18n` gives it. As its
/// base, but it can be neither copied nor moved.
template <class Char>
class basic_ifstream : public std::basic_ifstream<Char>, private boost::noncopyable {
public:
    basic_ifstream() = default;
    using std::basic_ifstream<Char>::basic_ifstream;
};

} // namespace fl::filesystem
