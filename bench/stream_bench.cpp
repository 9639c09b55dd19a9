#include "stream_bench.hpp"

#include "allocations.hpp"
#include "comparison.hpp"
#include "display_names.hpp"
#include "icu_detection.hpp"

#include <fl/i18n.hpp>

#include <unicode/ucnv.h>

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

namespace bench {

namespace {

using namespace fl::i18n;

struct closer {
    void operator()(UConverter* converter) const noexcept { ucnv_close(converter); }
};

/// One of ICU's stream calls on converters of its own, with the same arguments as the library's streams take.
template <class To, class From>
class bare_stream {
public:
    explicit bare_stream(char const* encoding, char const* other = "UTF-8") {
        UErrorCode status = U_ZERO_ERROR;
        converter_.reset(ucnv_open(encoding, &status));
        other_.reset(ucnv_open(other, &status));
    }

    bool do_convert(To** dst, To* dst_limit, From const** src, From const* src_limit, bool flush) const {
        UErrorCode status = U_ZERO_ERROR;
        if constexpr (std::is_same_v<From, char16_t>)
            ucnv_fromUnicode(converter_.get(), dst, dst_limit, src, src_limit, nullptr, flush, &status);
        else if constexpr (std::is_same_v<To, char16_t>)
            ucnv_toUnicode(converter_.get(), dst, dst_limit, src, src_limit, nullptr, flush, &status);
        else
            ucnv_convertEx(converter_.get(), other_.get(), dst, dst_limit, src, src_limit, pivot_,
                           &pivot_source_, &pivot_target_, pivot_ + std::size(pivot_), false, flush, &status);
        return status == U_BUFFER_OVERFLOW_ERROR;
    }

private:
    std::unique_ptr<UConverter, closer> converter_;
    std::unique_ptr<UConverter, closer> other_;
    mutable char16_t pivot_[4096];
    mutable char16_t* pivot_source_ = pivot_;
    mutable char16_t* pivot_target_ = pivot_;
};

/// The whole text through a stream: pieces of 4096 units, into a buffer of 4096 units that is used again.
/// Returns the units written.
template <class To, class From, class Stream>
std::size_t pump(Stream const& stream, std::basic_string<From> const& text, To* buffer) {
    constexpr std::size_t room = 4096;
    std::size_t written = 0;
    From const* src = text.data();
    From const* const end = src + text.size();
    for (bool is_last = false; !is_last;) {
        From const* const piece_end = src + std::min<std::size_t>(room, static_cast<std::size_t>(end - src));
        is_last = piece_end == end;
        for (bool more = true; more;) {
            To* dst = buffer;
            more = stream.do_convert(&dst, buffer + room, &src, piece_end, is_last);
            written += static_cast<std::size_t>(dst - buffer);
        }
    }
    return written;
}

template <class To, class From, class Ours, class Theirs>
void pair(std::string const& name, std::shared_ptr<Ours> const& ours, std::shared_ptr<Theirs> const& theirs,
          std::basic_string<From> const& text) {
    auto const buffer = std::make_shared<To[]>(4096);
    if (pump<To>(*ours, text, buffer.get()) != pump<To>(*theirs, text, buffer.get()))
        throw std::runtime_error("the two sides of " + name + " differ");
    std::size_t const before = allocation_count();
    pump<To>(*ours, text, buffer.get());
    if (allocation_count() != before)
        throw std::runtime_error(name + " allocates");
    compare(
        name, 1.05,
        [=](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(pump<To>(*ours, text, buffer.get()));
        },
        "icu",
        [=](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(pump<To>(*theirs, text, buffer.get()));
        });
}

bool has(std::string const& encoding, fl::ustring const& text) {
    try {
        static_cast<void>(codecvt_ustring_to_string(encoding, false).convert(text));
        return true;
    } catch (CvtExceptionBase const&) {
        return false;
    }
}

/// Real text of exactly `size` units: country names in a language, those that the encoding has, repeated.
/// What it lacks the library would write as references, which ICU's bare calls do not.
fl::ustring real_text(std::string const& encoding, std::string const& language, std::size_t size) {
    fl::ustring names;
    for (demo::message const& country : demo::country_names(language))
        if (has(encoding, country.text))
            names += country.text + u", ";
    fl::ustring text;
    while (text.size() < size)
        text += names;
    text.resize(size);
    return text;
}

void register_streams(char const* encoding, char const* language, std::size_t size) {
    std::string const name = std::string("stream/") + encoding + "/" + std::to_string(size);
    fl::ustring const text = real_text(encoding, language, size);
    std::string const bytes = codecvt_ustring_to_string(encoding, true).convert(text.data(), text.size());
    std::string const utf8 = ustring_to_utf8(text);
    pair<char>(name + "/to_bytes", std::make_shared<stream_codecvt_ustring_to_string>(encoding, true),
               std::make_shared<bare_stream<char, char16_t>>(encoding), text);
    pair<char16_t>(name + "/to_text", std::make_shared<stream_codecvt_string_to_ustring>(encoding, true),
                   std::make_shared<bare_stream<char16_t, char>>(encoding), bytes);
    pair<char>(name + "/utf8_to_bytes", std::make_shared<stream_codecvt_utf8string_to_string>(encoding, true),
               std::make_shared<bare_stream<char, char>>(encoding), utf8);
    pair<char>(name + "/bytes_to_utf8", std::make_shared<stream_codecvt_string_to_utf8string>(encoding, true),
               std::make_shared<bare_stream<char, char>>("UTF-8", encoding), bytes);
}

template <class Peer>
void register_detection(char const* encoding, char const* language, std::size_t size, char const* peer,
                        Peer theirs) {
    fl::ustring const text = real_text(encoding, language, size);
    std::string const bytes = codecvt_ustring_to_string(encoding, true).convert(text.data(), text.size());
    compare(
        std::string("detect/") + encoding + "/" + std::to_string(size), 1.05,
        [bytes](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(detect_charset(bytes.data(), bytes.size(), std::clog, u"bytes"));
        },
        peer,
        [bytes, theirs](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(theirs(bytes));
        });
}

} // namespace

void register_stream_benchmarks() {
    for (std::size_t const size : {1000U, 10000U, 100000U}) {
        register_streams("UTF-8", "fr", size);
        register_streams("ISO-8859-1", "de", size);
        register_streams("Shift_JIS", "ja", size);
    }
    for (std::size_t const size : {1000U, 100000U}) {
        register_detection("UTF-8", "ja", size, "u_strFromUTF8", icu_reads_as_utf8);
        register_detection("windows-1251", "ru", size, "ucsdet_detectAll", guess_with_icu);
    }
}

} // namespace bench
