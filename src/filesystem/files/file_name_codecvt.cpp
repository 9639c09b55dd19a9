#include "filesystem/primitives/name_conversion.hpp"

#include <fl/filesystem/file_name_codecvt.hpp>
#include <fl/i18n/cvt_ctx.hpp>

#include <unicode/ucnv.h>

namespace fl::filesystem {
namespace {

using fl::i18n::CvtCtx;

// A converter object, where `name_to_utf8` and its inverse do without one: it alone tells a character that
// the end of the text cuts off from text that is ill-formed, which are two exceptions here.
std::unique_ptr<CvtCtx> open_utf8() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, fl::i18n::lcctype::converter_close> converter(ucnv_open("UTF-8", &status));
    if (U_FAILURE(status))
        support::raise(FileNameConversionFailure());
    return std::make_unique<CvtCtx>(converter);
}

std::unique_ptr<CvtCtx> open_towards_bytes(bool tolerate) {
    std::unique_ptr<CvtCtx> context = open_utf8();
    if (!tolerate)
        context->change_from_call_back(fl::i18n::stop_call_back, "");
    return context;
}

std::unique_ptr<CvtCtx> open_towards_text(bool tolerate) {
    std::unique_ptr<CvtCtx> context = open_utf8();
    if (!tolerate)
        context->change_to_call_back(fl::i18n::stop_call_back);
    return context;
}

template <class From>
std::basic_string_view<From> source_view(From const* src, std::size_t src_len) noexcept {
    return src ? std::basic_string_view<From>(src, src_len) : std::basic_string_view<From>();
}

/// ICU's call for the direction that its argument types tell, as `convert_name` takes it.
auto call_of(CvtCtx const& context) {
    if (!context.handle())
        support::raise(FileNameConversionFailure());
    return [converter = context.handle()]<class To, class From>(
               To* dst, std::int32_t capacity, From const* src, std::int32_t length, UErrorCode* status) {
        if constexpr (std::is_same_v<To, char>)
            return ucnv_fromUChars(converter, dst, capacity, src, length, status);
        else
            return ucnv_toUChars(converter, dst, capacity, src, length, status);
    };
}

template <class To, class From>
std::basic_string<To> whole(CvtCtx const& context, From const* src, std::size_t src_len) {
    return detail::converted_name<To>(source_view(src, src_len), call_of(context));
}

template <class To, class From>
std::size_t into(CvtCtx const& context, To* dst, std::size_t dst_len, From const* src, std::size_t src_len) {
    return detail::convert_name(dst, dst_len, source_view(src, src_len), call_of(context));
}

} // namespace

codecvt_ustring_to_filesystem::codecvt_ustring_to_filesystem(bool tolerate)
    : context_(open_towards_bytes(tolerate)) {}

codecvt_ustring_to_filesystem::~codecvt_ustring_to_filesystem() = default;

unsigned long codecvt_ustring_to_filesystem::do_get_destination_size(char16_t const* src,
                                                                     unsigned long src_len) const {
    return into<char>(*context_, nullptr, 0, src, src_len);
}

std::string codecvt_ustring_to_filesystem::do_convert(char16_t const* src, unsigned long src_len) const {
    return whole<char>(*context_, src, src_len);
}

unsigned long codecvt_ustring_to_filesystem::do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                                                        unsigned long src_len) const {
    return into(*context_, dst, dst_len, src, src_len);
}

codecvt_filesystem_to_ustring::codecvt_filesystem_to_ustring(bool tolerate)
    : context_(open_towards_text(tolerate)) {}

codecvt_filesystem_to_ustring::~codecvt_filesystem_to_ustring() = default;

unsigned long codecvt_filesystem_to_ustring::do_get_destination_size(char const* src,
                                                                     unsigned long src_len) const {
    return into<char16_t>(*context_, nullptr, 0, src, src_len);
}

ustring codecvt_filesystem_to_ustring::do_convert(char const* src, unsigned long src_len) const {
    return whole<char16_t>(*context_, src, src_len);
}

unsigned long codecvt_filesystem_to_ustring::do_convert(char16_t* dst, unsigned long dst_len, char const* src,
                                                        unsigned long src_len) const {
    return into(*context_, dst, dst_len, src, src_len);
}

codecvt_ustring_to_narrow_string::~codecvt_ustring_to_narrow_string() = default;

codecvt_narrow_string_to_ustring::~codecvt_narrow_string_to_ustring() = default;

} // namespace fl::filesystem
