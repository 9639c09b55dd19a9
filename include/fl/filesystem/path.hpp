/// @file
/// Paths as text.
///
/// A path is plain text, split into components by "/"; no character but the separator is special, a backslash
/// least of all. `upath` holds UTF-16, the form that this library works in; `native_path` holds the bytes
/// that the system takes. Between the two stands UTF-8, always, whatever the locale's encoding is.
///
///     upath path(fl::filesystem::detail::make_native_form(root));   // "/opt//x/" gives "/opt/x"
///     path /= u"resources";                            // "/opt/x/resources"
///     std::string const bytes = fl::filesystem::detail::make_native_access_form(path.string());
///
/// The functions of `detail`, which is part of the interface here, are text operations: they never look at
/// the disk. Lengths count code units. Except where said, they accept any text, unpaired surrogates and zero
/// units included, and fail only by `std::bad_alloc`. Everything here may be called from any thread.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace fl::filesystem {

/// A path: text, and a flag of 32 bits behind it that says in which form the text is. Callers give 1, the
/// native form of the system, which is not checked: a path keeps its text as it was given.
///
/// A value type, compared by text alone, code unit by code unit. `SystemChar` is the unit of names that the
/// system takes, `Char` the unit of the text, and `Traits` supplies `concatenate_pathname`.
template <class SystemChar, class Char, class Traits>
class basic_path {
public:
    using system_char = SystemChar;
    using value_type = Char;
    using string_type = std::basic_string<Char>;
    using traits_type = Traits;

    /// The empty path.
    basic_path() = default;

    explicit basic_path(string_type text, std::uint32_t form = 1) noexcept
        : text_(std::move(text)),
          form_(form) {}

    /// The text, as it was given. The reference lives as long as the path stays unchanged.
    [[nodiscard]] string_type const& string() const& noexcept { return text_; }
    [[nodiscard]] string_type string() && noexcept { return std::move(text_); }

    [[nodiscard]] std::uint32_t form() const noexcept { return form_; }
    [[nodiscard]] bool empty() const noexcept { return text_.empty(); }

    /// Appends components, as `concatenate_pathname` joins them: "a" / "b" is "a/b", "" / "b" is "b".
    basic_path& operator/=(std::basic_string_view<Char> components) {
        // A copy: the components may be a view of this very text.
        text_ = Traits::concatenate_pathname(text_, components, static_cast<int>(form_));
        return *this;
    }

    friend basic_path operator/(basic_path left, std::basic_string_view<Char> right) {
        left /= right;
        return left;
    }

    friend bool operator==(basic_path const& left, basic_path const& right) noexcept {
        return left.text_ == right.text_;
    }
    friend std::strong_ordering operator<=>(basic_path const& left, basic_path const& right) noexcept {
        return left.text_.compare(right.text_) <=> 0;
    }

private:
    string_type text_;
    std::uint32_t form_ = 1;
};

/// The names that are fixed by the system: "/", "." and "..".
namespace upath_constant {
FL_I18N_EXPORT extern ustring const PATHNAME_SEPARATOR;
FL_I18N_EXPORT extern ustring const CURRENT_DIRECTORY;
FL_I18N_EXPORT extern ustring const PARENT_DIRECTORY;
} // namespace upath_constant

namespace detail {

/// The name with each run of separators made one and without a separator at its end. "/" stays "/", "//"
/// becomes "/"; the result is empty only for an empty name, and is its own native form. "." and ".." stay.
/// `form` takes the flag of a path; this system has one form, so it decides nothing.
[[nodiscard]] FL_I18N_EXPORT ustring make_native_form(ustring name, int form = 1);

/// `first` and `second` with one separator between them, however many they bring at the seam: "a/" and "/b"
/// give "a/b", "/" and "b" give "/b". If one of them is empty, the result is the other one. A `second` of
/// nothing but separators counts as empty if there is a `first`. The rest of both stays as it is; `form`
/// decides nothing.
[[nodiscard]] FL_I18N_EXPORT ustring concatenate_pathname(ustring first, std::u16string_view second,
                                                          int form = 1);

/// The last component: "c.txt" for "a/b/c.txt". Separators behind it are skipped. "." and ".." are components
/// like others; an empty name and "/" have none and give an empty result.
[[nodiscard]] FL_I18N_EXPORT ustring extract_filename(std::u16string_view name);

/// The last component up to the last dot: "c.tar" for "a/c.tar.gz". A dot at its beginning doesn't count, so
/// that ".profile", "." and ".." are stems as a whole.
[[nodiscard]] FL_I18N_EXPORT ustring extract_stem(std::u16string_view name);

/// What `extract_stem` leaves of the last component, its dot included: ".gz", "." for "c.", or empty.
[[nodiscard]] FL_I18N_EXPORT ustring extract_extension(std::u16string_view name);

/// True if the name begins with a separator.
[[nodiscard]] FL_I18N_EXPORT bool is_absolute(std::u16string_view name) noexcept;

/// The name in UTF-8. An unpaired surrogate throws `CvtInvalidCharacter`; a name whose length or result
/// exceeds a signed 32-bit integer, `FileNameTooLarge`. Zero units pass.
[[nodiscard]] FL_I18N_EXPORT std::string to_filesystem(std::u16string_view name);

/// The name in UTF-16. Bytes that are not UTF-8 throw `CvtInvalidCharacter`; sizes are limited as for
/// `to_filesystem`, whose inverse this is.
[[nodiscard]] FL_I18N_EXPORT ustring from_filesystem(std::string_view name);

/// The form of a narrow name that a system call takes: on this system the name itself. A name with a zero
/// byte has no such form, since the system would read only what stands before it: throws `InvalidArgument`.
[[nodiscard]] FL_I18N_EXPORT std::string make_access_form(std::string name);

/// `make_native_form`, `to_filesystem` and `make_access_form` in turn, with their exceptions: what a system
/// call takes for this name.
[[nodiscard]] FL_I18N_EXPORT std::string make_native_access_form(ustring name, int form = 1);

/// The same with "." and ".." resolved as text: "/a/./b/../c" gives "/a/c", "/.." gives "/", "a/.." gives
/// ".", "../a" stays. Symbolic links are not seen: where "b" is one, the result may name another file.
[[nodiscard]] FL_I18N_EXPORT std::string make_native_access_form_with_cleanup(ustring const& name,
                                                                              int form = 1);

/// `make_native_access_form(name)`.
[[nodiscard]] FL_I18N_EXPORT std::string make_native_access_form_i18n(ustring name);

/// `make_native_access_form_with_cleanup(name)`.
[[nodiscard]] FL_I18N_EXPORT std::string make_native_access_form_with_cleanup_i18n(ustring const& name);

/// Throws `InvalidArgument`: an iterator was used past its end.
[[noreturn]] FL_I18N_EXPORT void throw_invalid_operation_exception();

/// Operations by kind of text; the first parameter is the unit of names that the system takes.
template <class SystemChar, class Char>
struct path_traits;

/// What `upath` needs.
template <>
struct path_traits<char, char16_t> {
    [[nodiscard]] static ustring make_native_form(ustring name, int form) {
        return detail::make_native_form(std::move(name), form);
    }
    [[nodiscard]] static ustring concatenate_pathname(ustring first, std::u16string_view second, int form) {
        return detail::concatenate_pathname(std::move(first), second, form);
    }
};

/// UTF-16 alone.
template <>
struct path_traits<char16_t, char16_t> {
    [[nodiscard]] static ustring make_native_form(ustring name, int form) {
        return detail::make_native_form(std::move(name), form);
    }
};

/// Narrow text: each function means what its namesake for UTF-16 means. Bytes need not be UTF-8.
template <>
struct FL_I18N_EXPORT path_traits<char, char> {
    [[nodiscard]] static std::string make_native_form(std::string name, int form = 1);
    [[nodiscard]] static std::string concatenate_pathname(std::string first, std::string_view second,
                                                          int form = 1);
    [[nodiscard]] static std::string extract_filename(std::string_view name);

    /// The name without its last component and the separator before it: "/a/b" gives "/a". The separator of
    /// the root stays, "/a" gives "/"; "a", "/" and an empty name give an empty result.
    [[nodiscard]] static std::string remove_filename(std::string_view name);
};

template <class SystemChar, class Char>
struct native_path_traits;

/// What `native_path` needs.
template <>
struct native_path_traits<char, char> : path_traits<char, char> {};

template <class Char>
struct pathname_traits;

template <>
struct pathname_traits<char16_t> {
    [[nodiscard]] static std::string to_filesystem(std::u16string_view name) {
        return detail::to_filesystem(name);
    }
};

} // namespace detail

/// A path in UTF-16.
using upath = basic_path<char, char16_t, detail::path_traits<char, char16_t>>;

/// A path in the bytes that the system takes.
using native_path = basic_path<char, char, detail::native_path_traits<char, char>>;

} // namespace fl::filesystem
