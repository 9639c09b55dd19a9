/// @file
/// An ICU converter together with what was set on it.
///
/// `CvtCtx` owns one ICU converter, knows the standard name of its encoding, and remembers what it was told
/// to do at a character that can't be converted. The conversion classes hold one each; use it directly to
/// drive ICU with the same rules:
///
///     CvtCtx ctx("ISO-8859-1");
///     ctx.change_from_call_back(escape_java_call_back, ""); // U+4E2D becomes the six bytes "\u4E2D"
///     ucnv_fromUChars(ctx.handle(), ...);
///
/// "From" is the direction out of Unicode, into bytes; "to" the direction into Unicode.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <memory>
#include <string>

struct UConverter;

namespace fl::i18n {

/// What happens at a character that can't be converted. The values are bits; all that escape lie in the mask
/// 0x7F00. Other values can be made by a cast: the functions that take one say what they do with it.
enum codecvt_call_back_mode : std::uint32_t {
    no_call_back = 0,                ///< ICU's default: the encoding's substitution character
    stop_call_back = 1,              ///< fail at the first such character or ill-formed sequence
    substitute_call_back = 16,       ///< the caller's substitution bytes; "from" only
    reserved_call_back = 32,         ///< refused in both directions
    escape_icu_call_back = 256,      ///< "%UXXXX"; this and all below: "from" only
    escape_java_call_back = 512,     ///< `UCNV_ESCAPE_JAVA`: "\uXXXX", by UTF-16 code unit
    escape_c_call_back = 1024,       ///< `UCNV_ESCAPE_C`: "\uXXXX" or "\UXXXXXXXX"
    escape_xml_dec_call_back = 2048, ///< `UCNV_ESCAPE_XML_DEC`: "&#DDDD;"
    escape_xml_hex_call_back = 4096, ///< `UCNV_ESCAPE_XML_HEX`: "&#xXXXX;"
    escape_unicode_call_back = 8192, ///< `UCNV_ESCAPE_UNICODE`: "{U+XXXX}"
    escape_css2_call_back = 16384,   ///< `UCNV_ESCAPE_CSS2`: "\XXXX "
};

namespace lcctype {

/// The deleter of an owned ICU converter: `ucnv_close`.
struct FL_I18N_EXPORT converter_close {
    void operator()(UConverter* converter) const noexcept;
};

/// A converter that is kept for a locale's encoding, or null if the encoding has none. The master of a locale
/// is only ever cloned; each clone is for one thread.
struct code_converter_context {
    std::unique_ptr<UConverter, converter_close> converter;
    std::string name; ///< always empty
};

} // namespace lcctype

/// The owner of one ICU converter.
///
/// In each direction either ICU's default behaviour is in force (mode 0), or a call-back is installed and its
/// mode recorded. A change always passes through the default: when the new mode is refused, the earlier one
/// is already gone.
///
/// An object may be without a converter, after a failed `open_converter` or by the adoption of a null handle.
/// The operations that set something then throw `CvtCallBackSettingFailure`, unless there is nothing to set,
/// and those that ask for a name answer with nothing.
///
/// For one thread at a time, the `const` operations included: names are cached at the first call.
class FL_I18N_EXPORT CvtCtx {
public:
    /// Opens a converter, like `open_converter`.
    explicit CvtCtx(std::string const& encoding);

    /// Takes a converter over as it is, and leaves the argument empty. Null is allowed.
    explicit CvtCtx(std::unique_ptr<UConverter, lcctype::converter_close>& cnv);

    CvtCtx(CvtCtx const&) = delete;
    CvtCtx& operator=(CvtCtx const&) = delete;

    /// Closes the converter held, if any, and opens one for `encoding`: any name or alias that ICU's
    /// `ucnv_open` knows. Both modes start at 0 again; the names that `get_encoding` has cached stay. Throws
    /// `CvtInvalidEncodingName`, and is then left without a converter.
    void open_converter(std::string const& encoding);

    /// Changes what happens at a character that the encoding lacks. First goes back to mode 0; then takes
    /// 0, `stop_call_back`, `substitute_call_back` (see `change_from_substitution`) or any value with a bit
    /// of the escape mask 0x7F00 (see `enable_escape_mode`); `substitution` counts for `substitute_call_back`
    /// alone. Throws `CvtNonSupportedMode` for `reserved_call_back`, `CvtInvalidArgument` for any other
    /// value.
    void change_from_call_back(codecvt_call_back_mode mode, std::string const& substitution);

    /// Puts back what the recorded call-back replaced. Does nothing in mode 0.
    void reset_from_call_back();

    /// Replaces characters that the encoding lacks by an escape. A value that is not exactly one of the named
    /// escape modes, a combination of bits for example, escapes in ICU's own form, and is recorded as it is.
    /// Characters that Unicode calls default-ignorable are escaped like any other. Any earlier mode is not
    /// looked at: what this call replaces is what a reset puts back.
    void enable_escape_mode(codecvt_call_back_mode mode);

    /// Stops at the first character that the encoding lacks, one that Unicode calls default-ignorable
    /// included. Does nothing if that is the mode already.
    void enable_from_invalid_check();

    /// Sets the bytes, in the target encoding, that stand for a character that the encoding lacks. They stay
    /// in force for the life of the converter: the mode remains 0, and `reset_from_call_back` doesn't take
    /// them back. Throws `CvtInvalidArgument` for an empty substitution or when the mode isn't 0,
    /// `CvtSizeTooLarge` for 128 bytes or more, and `CvtCallBackSettingFailure` when ICU refuses the bytes.
    void change_from_substitution(std::string const& substitution);

    [[nodiscard]] codecvt_call_back_mode get_from_call_back_mode() const noexcept { return from_mode_; }

    /// Changes what happens at an ill-formed sequence of bytes. First goes back to mode 0; then takes 0 or
    /// `stop_call_back`. Throws `CvtNonSupportedMode` for every other named mode and for any value with a bit
    /// of the escape mask 0x7F00, `CvtInvalidArgument` for the rest.
    void change_to_call_back(codecvt_call_back_mode mode);

    /// Puts back what the recorded call-back replaced. Does nothing in mode 0.
    void reset_to_call_back();

    /// Stops at the first ill-formed sequence. Does nothing if that is the mode already.
    void enable_to_invalid_check();

    [[nodiscard]] codecvt_call_back_mode get_to_call_back_mode() const noexcept { return to_mode_; }

    /// The standard name of the encoding, or ICU's name of the converter if no standard has one, or an empty
    /// text without a converter. The answer is found once: after a second `open_converter` it is still the
    /// first encoding's. The reference lives as long as the object.
    [[nodiscard]] std::string const& get_encoding() const;

    /// Sets `name` to ICU's name of the converter, or leaves it alone if there is none. Returns `name`.
    std::string& get_cvt_name(std::string& name) const;

    /// The name that the first of the standards "MIME", "IANA" and "WINDOWS" gives to the encoding `name`, or
    /// an empty text. <fl/i18n/string_conversion.hpp> says which function to ask for the name of an encoding.
    [[nodiscard]] std::string get_std_encoding_name(std::string const& name) const;

    /// The most bytes that one UTF-16 code unit can need (ICU's `ucnv_getMaxCharSize`), 4 for "UTF-8", 0
    /// without a converter.
    [[nodiscard]] unsigned long get_max_byte_size() const;

    /// The converter, or null. It stays owned by this object; whoever sets a call-back on it past this object
    /// must take it back again.
    [[nodiscard]] UConverter* handle() const noexcept { return converter_.get(); }

private:
    using action = void (*)(); // either of ICU's two call-back types, whose arguments can't be declared here

    void forget_call_backs() noexcept;

    std::unique_ptr<UConverter, lcctype::converter_close> converter_;
    codecvt_call_back_mode from_mode_ = no_call_back;
    codecvt_call_back_mode to_mode_ = no_call_back;
    action saved_from_action_ = nullptr;
    action saved_to_action_ = nullptr;
    void const* saved_from_context_ = nullptr;
    void const* saved_to_context_ = nullptr;
    mutable std::string converter_name_;
    mutable std::string standard_name_;
    std::string no_name_; // stays empty
};

} // namespace fl::i18n
