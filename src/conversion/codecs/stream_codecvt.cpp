#include "conversion/codecs/icu_conversion.hpp"

#include <fl/i18n/stream_codecvt.hpp>

#include <unicode/ucnv.h>

#include <iterator>

namespace fl::i18n {

namespace {

/// What ICU's status of one call means to the caller: whether more room is needed. A failure leaves the
/// object ready for a new text.
template <class To, class From>
bool needs_room(stream_converter<To, From> const& stream, UErrorCode status) {
    if (U_SUCCESS(status))
        return false;
    if (status == U_BUFFER_OVERFLOW_ERROR)
        return true;
    stream.do_reset_state();
    detail::raise_conversion_failure(status);
}

} // namespace

stream_codecvt_ustring_to_string::stream_codecvt_ustring_to_string(std::string const& encoding,
                                                                   bool tolerate_invalid)
    : context_(detail::open_context(encoding)) {
    if (!tolerate_invalid)
        context_->change_from_call_back(stop_call_back, std::string());
}

stream_codecvt_ustring_to_string::~stream_codecvt_ustring_to_string() = default;

bool stream_codecvt_ustring_to_string::do_convert(char** dst, char* dst_limit, char16_t const** src,
                                                  char16_t const* src_limit, bool flush) const {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUnicode(context_->handle(), dst, dst_limit, src, src_limit, nullptr, flush, &status);
    return needs_room(*this, status);
}

void stream_codecvt_ustring_to_string::do_reset_state() const {
    ucnv_resetFromUnicode(context_->handle());
}

unsigned long stream_codecvt_ustring_to_string::do_max_char_size() const {
    return context_->get_max_byte_size();
}

stream_codecvt_string_to_ustring::stream_codecvt_string_to_ustring(std::string const& encoding,
                                                                   bool tolerate_invalid)
    : context_(detail::open_context(encoding)) {
    if (!tolerate_invalid)
        context_->change_to_call_back(stop_call_back);
}

stream_codecvt_string_to_ustring::~stream_codecvt_string_to_ustring() = default;

bool stream_codecvt_string_to_ustring::do_convert(char16_t** dst, char16_t* dst_limit, char const** src,
                                                  char const* src_limit, bool flush) const {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(context_->handle(), dst, dst_limit, src, src_limit, nullptr, flush, &status);
    return needs_room(*this, status);
}

void stream_codecvt_string_to_ustring::do_reset_state() const {
    ucnv_resetToUnicode(context_->handle());
}

unsigned long stream_codecvt_string_to_ustring::do_max_char_size() const {
    return 2;
}

namespace detail {

/// The text between the two converters; what waits there from call to call lies from `source` to `target`.
struct pivot_buffer {
    char16_t units[4096];
    char16_t* source = units;
    char16_t* target = units;

    void clear() noexcept { source = target = units; }
};

stream_codecvt_multi_streaming_converter::stream_codecvt_multi_streaming_converter(
    std::string const& encoding, MultiStreamConvType mode, bool tolerate_invalid)
    : target_(open_context(mode == encoding_to_utf8 ? "UTF-8" : encoding)),
      source_(open_context(mode == utf8_to_encoding ? "UTF-8" : encoding)),
      pivot_(std::make_unique_for_overwrite<pivot_buffer>()),
      mode_(mode) {
    if (!tolerate_invalid) {
        target_->change_from_call_back(stop_call_back, std::string());
        source_->change_to_call_back(stop_call_back);
    } else if (mode == utf8_to_encoding) {
        target_->change_from_call_back(escape_xml_hex_call_back, std::string());
    }
}

stream_codecvt_multi_streaming_converter::~stream_codecvt_multi_streaming_converter() = default;

bool stream_codecvt_multi_streaming_converter::do_convert(char** dst, char* dst_limit, char const** src,
                                                          char const* src_limit, bool flush) const {
    // ICU refuses a null cursor, and takes the null limit of a source to mean "up to the NUL".
    char nowhere = '\0';
    char* no_room = &nowhere;
    char const* no_source = &nowhere;
    bool const has_room = *dst || dst_limit;
    bool const has_source = *src || src_limit;
    UErrorCode status = *src && !src_limit ? U_ILLEGAL_ARGUMENT_ERROR : U_ZERO_ERROR;
    ucnv_convertEx(target_->handle(), source_->handle(), has_room ? dst : &no_room,
                   has_room ? dst_limit : no_room, has_source ? src : &no_source,
                   has_source ? src_limit : no_source, pivot_->units, &pivot_->source, &pivot_->target,
                   std::end(pivot_->units), false, flush, &status);
    return needs_room(*this, status);
}

void stream_codecvt_multi_streaming_converter::do_reset_state() const {
    ucnv_resetToUnicode(source_->handle());
    ucnv_resetFromUnicode(target_->handle());
    pivot_->clear();
}

unsigned long stream_codecvt_multi_streaming_converter::do_max_char_size() const {
    switch (mode_) {
    case utf8_to_encoding:
        return target_->get_max_byte_size();
    case encoding_to_utf8:
        return source_->get_max_byte_size();
    default:
        return 0;
    }
}

} // namespace detail

stream_codecvt_utf8string_to_string::stream_codecvt_utf8string_to_string(std::string const& encoding,
                                                                         bool tolerate_invalid)
    : stream_codecvt_multi_streaming_converter(encoding, detail::utf8_to_encoding, tolerate_invalid) {}

stream_codecvt_utf8string_to_string::~stream_codecvt_utf8string_to_string() = default;

stream_codecvt_string_to_utf8string::stream_codecvt_string_to_utf8string(std::string const& encoding,
                                                                         bool tolerate_invalid)
    : stream_codecvt_multi_streaming_converter(encoding, detail::encoding_to_utf8, tolerate_invalid) {}

stream_codecvt_string_to_utf8string::~stream_codecvt_string_to_utf8string() = default;

} // namespace fl::i18n
