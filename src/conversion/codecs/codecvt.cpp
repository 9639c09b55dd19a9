#include "conversion/codecs/icu_conversion.hpp"
#include "conversion/codecs/sized_conversion.hpp"

#include <fl/i18n/codecvt.hpp>

#include <unicode/ucnv.h>

#include <utility>

namespace fl::i18n {

namespace {

/// Lends the converter of a context for one conversion, and resets it however that ends.
class borrowed_converter {
public:
    explicit borrowed_converter(CvtCtx const* context) : handle_(context ? context->handle() : nullptr) {
        if (!handle_)
            support::raise(CvtConversionFailure());
    }
    borrowed_converter(borrowed_converter const&) = delete;
    borrowed_converter& operator=(borrowed_converter const&) = delete;
    ~borrowed_converter() { ucnv_reset(handle_); }

    UConverter* get() const noexcept { return handle_; }

private:
    UConverter* handle_;
};

} // namespace

codecvt_ustring_to_string::codecvt_ustring_to_string(std::string const& encoding, bool tolerate_invalid)
    : codecvt_ustring_to_string(tolerate_invalid ? no_call_back : stop_call_back, encoding, std::string()) {}

codecvt_ustring_to_string::codecvt_ustring_to_string(codecvt_call_back_mode mode, std::string const& encoding,
                                                     std::string const& substitution)
    : context_(detail::open_context(encoding)) {
    if (mode != no_call_back)
        context_->change_from_call_back(mode, substitution);
}

// The base cannot be copied, so a defaulted move would be deleted.
codecvt_ustring_to_string::codecvt_ustring_to_string(codecvt_ustring_to_string&& other) noexcept
    : context_(std::move(other.context_)) {}

codecvt_ustring_to_string& codecvt_ustring_to_string::operator=(codecvt_ustring_to_string&& other) noexcept {
    context_ = std::move(other.context_);
    return *this;
}

codecvt_ustring_to_string::~codecvt_ustring_to_string() = default;

void codecvt_ustring_to_string::change_call_back(codecvt_call_back_mode mode,
                                                 std::string const& substitution) {
    if (context_)
        context_->change_from_call_back(mode, substitution);
}

void codecvt_ustring_to_string::reset_call_back() {
    if (context_)
        context_->reset_from_call_back();
}

codecvt_call_back_mode codecvt_ustring_to_string::get_call_back_mode() const {
    return context_ ? context_->get_from_call_back_mode() : no_call_back;
}

unsigned long codecvt_ustring_to_string::do_get_destination_size(char16_t const* src,
                                                                 unsigned long src_len) const {
    return do_convert(nullptr, 0, src, src_len);
}

std::string codecvt_ustring_to_string::do_convert(char16_t const* src, unsigned long src_len) const {
    borrowed_converter const cnv(context_.get());
    return detail::convert_sized(cnv.get(), src, src_len);
}

unsigned long codecvt_ustring_to_string::do_convert(char* dst, unsigned long dst_len, char16_t const* src,
                                                    unsigned long src_len) const {
    borrowed_converter const cnv(context_.get());
    return detail::convert_sized(cnv.get(), dst, dst_len, src, src_len);
}

codecvt_string_to_ustring::codecvt_string_to_ustring(std::string const& encoding, bool tolerate_invalid)
    : codecvt_string_to_ustring(tolerate_invalid ? no_call_back : stop_call_back, encoding) {}

codecvt_string_to_ustring::codecvt_string_to_ustring(codecvt_call_back_mode mode, std::string const& encoding)
    : context_(detail::open_context(encoding)) {
    if (mode != no_call_back)
        context_->change_to_call_back(mode);
}

codecvt_string_to_ustring::codecvt_string_to_ustring(codecvt_string_to_ustring&& other) noexcept
    : context_(std::move(other.context_)) {}

codecvt_string_to_ustring& codecvt_string_to_ustring::operator=(codecvt_string_to_ustring&& other) noexcept {
    context_ = std::move(other.context_);
    return *this;
}

codecvt_string_to_ustring::~codecvt_string_to_ustring() = default;

void codecvt_string_to_ustring::change_call_back(codecvt_call_back_mode mode) {
    if (context_)
        context_->change_to_call_back(mode);
}

void codecvt_string_to_ustring::reset_call_back() {
    if (context_)
        context_->reset_to_call_back();
}

codecvt_call_back_mode codecvt_string_to_ustring::get_call_back_mode() const {
    return context_ ? context_->get_to_call_back_mode() : no_call_back;
}

unsigned long codecvt_string_to_ustring::do_get_destination_size(char const* src,
                                                                 unsigned long src_len) const {
    return do_convert(nullptr, 0, src, src_len);
}

ustring codecvt_string_to_ustring::do_convert(char const* src, unsigned long src_len) const {
    borrowed_converter const cnv(context_.get());
    return detail::convert_sized(cnv.get(), src, src_len);
}

unsigned long codecvt_string_to_ustring::do_convert(char16_t* dst, unsigned long dst_len, char const* src,
                                                    unsigned long src_len) const {
    borrowed_converter const cnv(context_.get());
    return detail::convert_sized(cnv.get(), dst, dst_len, src, src_len);
}

} // namespace fl::i18n
