/// @file
/// The conversion of file names as `converter` objects, for those who take one by reference or want a choice
/// of what happens at ill-formed text.
///
///     codecvt_ustring_to_filesystem strict(false);
///     std::string const bytes = strict.convert(name);
///
/// All four classes convert between UTF-16 and UTF-8, never the locale's encoding; the classes for narrow
/// strings serve text that goes with names but is none itself. They are told at construction whether they are
/// tolerant: a tolerant object puts U+FFFD in the place of an unpaired surrogate or of bytes that are not
/// UTF-8, the other kind throws `CvtInvalidCharacter`, except for a surrogate or a sequence of bytes that the
/// end of the text cuts off, which is a `FileNameConversionFailure`.
///
/// The constructors throw `FileNameConversionFailure` where ICU has no converter. Conversion throws besides
/// the above `FileNameTooLarge`, for a source, a buffer or a result above a signed 32-bit integer of units.
///
/// `convert` into a buffer answers with the size of the whole result, also when that is above the capacity
/// and only a part was written; ICU puts a terminator behind the text if the buffer has room left for one.
///
/// One object is for one thread at a time, as ICU's converters are.
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <memory>
#include <string>

namespace fl::i18n {
class CvtCtx;
}

namespace fl::filesystem {

/// From a name in UTF-16 to the bytes that the system takes (ICU's `ucnv_fromUChars`).
class FL_I18N_EXPORT codecvt_ustring_to_filesystem : public fl::i18n::converter<char, char16_t> {
public:
    explicit codecvt_ustring_to_filesystem(bool tolerate);
    ~codecvt_ustring_to_filesystem() override;

protected:
    unsigned long do_get_destination_size(char16_t const* src, unsigned long src_len) const override;
    std::string do_convert(char16_t const* src, unsigned long src_len) const override;
    unsigned long do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                             unsigned long src_len) const override;

private:
    std::unique_ptr<fl::i18n::CvtCtx> context_;
};

/// From the bytes of a name to UTF-16 (ICU's `ucnv_toUChars`).
class FL_I18N_EXPORT codecvt_filesystem_to_ustring : public fl::i18n::converter<char16_t, char> {
public:
    explicit codecvt_filesystem_to_ustring(bool tolerate);
    ~codecvt_filesystem_to_ustring() override;

protected:
    unsigned long do_get_destination_size(char const* src, unsigned long src_len) const override;
    ustring do_convert(char const* src, unsigned long src_len) const override;
    unsigned long do_convert(char16_t* dst, unsigned long dst_len, char const* src,
                             unsigned long src_len) const override;

private:
    std::unique_ptr<fl::i18n::CvtCtx> context_;
};

/// The same conversion, for other text than names.
class FL_I18N_EXPORT codecvt_ustring_to_narrow_string : public codecvt_ustring_to_filesystem {
public:
    using codecvt_ustring_to_filesystem::codecvt_ustring_to_filesystem;
    ~codecvt_ustring_to_narrow_string() override;
};

/// The same conversion, for other text than names.
class FL_I18N_EXPORT codecvt_narrow_string_to_ustring : public codecvt_filesystem_to_ustring {
public:
    using codecvt_filesystem_to_ustring::codecvt_filesystem_to_ustring;
    ~codecvt_narrow_string_to_ustring() override;
};

} // namespace fl::filesystem
