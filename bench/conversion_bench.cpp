#include "conversion_bench.hpp"

#include "comparison.hpp"
#include "display_names.hpp"

#include <fl/i18n.hpp>

#include <unicode/ucnv.h>

#include <memory>
#include <string>

namespace bench {

namespace {

using namespace fl::i18n;

struct closer {
    void operator()(UConverter* converter) const noexcept { ucnv_close(converter); }
};
using bare_converter = std::unique_ptr<UConverter, closer>;

bare_converter open(std::string const& encoding) {
    UErrorCode status = U_ZERO_ERROR;
    return bare_converter(ucnv_open(encoding.c_str(), &status));
}

std::int32_t length(std::size_t size) {
    return static_cast<std::int32_t>(size);
}

/// Real text of exactly `size` units: country names in a language, repeated.
fl::ustring real_text(std::string const& language, std::size_t size) {
    fl::ustring text;
    while (text.size() < size)
        for (demo::message const& country : demo::country_names(language))
            text += country.text + u", ";
    text.resize(size);
    return text;
}

std::string bare_string(UConverter* converter, fl::ustring const& text) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size =
        ucnv_fromUChars(converter, nullptr, 0, text.data(), length(text.size()), &status);
    std::string result(static_cast<std::size_t>(size), '\0');
    status = U_ZERO_ERROR;
    ucnv_fromUChars(converter, result.data(), size, text.data(), length(text.size()), &status);
    return result;
}

fl::ustring bare_ustring(UConverter* converter, std::string const& bytes) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size =
        ucnv_toUChars(converter, nullptr, 0, bytes.data(), length(bytes.size()), &status);
    fl::ustring result(static_cast<std::size_t>(size), u'\0');
    status = U_ZERO_ERROR;
    ucnv_toUChars(converter, result.data(), size, bytes.data(), length(bytes.size()), &status);
    return result;
}

/// What one pair of benchmarks works on; shared by both sides and kept until the end of the run.
struct sample {
    sample(std::string const& encoding, std::string const& language, std::size_t size)
        : text(real_text(language, size)),
          bare(open(encoding)),
          to_bytes(encoding, true),
          to_text(encoding, true),
          bytes(to_bytes.convert(text.data(), text.size())),
          byte_buffer(bytes.size(), '\0'),
          text_buffer(text.size() * 2, u'\0') {}

    fl::ustring text;
    bare_converter bare;
    codecvt_ustring_to_string to_bytes;
    codecvt_string_to_ustring to_text;
    std::string bytes;
    std::string byte_buffer;
    fl::ustring text_buffer;
};

void register_buffer_forms(std::string const& name, std::shared_ptr<sample> const& with) {
    compare(
        name + "/to_bytes/buffer", 1.05,
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(with->to_bytes.convert(with->byte_buffer.data(),
                                                                with->byte_buffer.size(), with->text.data(),
                                                                with->text.size()));
        },
        "icu",
        [with](benchmark::State& state) {
            for (auto _ : state) {
                UErrorCode status = U_ZERO_ERROR;
                benchmark::DoNotOptimize(ucnv_fromUChars(with->bare.get(), with->byte_buffer.data(),
                                                         length(with->byte_buffer.size()), with->text.data(),
                                                         length(with->text.size()), &status));
            }
        });
    compare(
        name + "/to_text/buffer", 1.05,
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(with->to_text.convert(with->text_buffer.data(),
                                                               with->text_buffer.size(), with->bytes.data(),
                                                               with->bytes.size()));
        },
        "icu",
        [with](benchmark::State& state) {
            for (auto _ : state) {
                UErrorCode status = U_ZERO_ERROR;
                benchmark::DoNotOptimize(ucnv_toUChars(with->bare.get(), with->text_buffer.data(),
                                                       length(with->text_buffer.size()), with->bytes.data(),
                                                       length(with->bytes.size()), &status));
            }
        });
}

void register_string_forms(std::string const& name, std::shared_ptr<sample> const& with) {
    compare(
        name + "/to_bytes/string", 1.05,
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(with->to_bytes.convert(with->text.data(), with->text.size()));
        },
        "icu_sized_and_filled",
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(bare_string(with->bare.get(), with->text));
        });
    compare(
        name + "/to_text/string", 1.05,
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(with->to_text.convert(with->bytes.data(), with->bytes.size()));
        },
        "icu_sized_and_filled",
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(bare_ustring(with->bare.get(), with->bytes));
        });
}

/// The cheapest way with bare ICU: one call into a buffer on the stack, known to be large enough.
std::string one_call_string(UConverter* converter, fl::ustring const& text) {
    char buffer[4096];
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size =
        ucnv_fromUChars(converter, buffer, length(sizeof buffer), text.data(), length(text.size()), &status);
    return std::string(buffer, static_cast<std::size_t>(size));
}

fl::ustring one_call_ustring(UConverter* converter, std::string const& bytes) {
    char16_t buffer[4096];
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const size = ucnv_toUChars(converter, buffer, length(std::size(buffer)), bytes.data(),
                                            length(bytes.size()), &status);
    return fl::ustring(buffer, static_cast<std::size_t>(size));
}

/// `to_string` and `to_ustring` in the process encoding (UTF-8 here) beside clone, conversion into a buffer
/// that is large enough, and close.
void register_front_end(std::size_t size) {
    auto const with = std::make_shared<sample>("UTF-8", "fr", size);
    std::string const name = "front_end/" + std::to_string(size);
    compare(
        name + "/to_string", 1.10,
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(to_string(with->text));
        },
        "clone_convert_close",
        [with](benchmark::State& state) {
            for (auto _ : state) {
                UErrorCode status = U_ZERO_ERROR;
                bare_converter const clone(ucnv_clone(with->bare.get(), &status));
                benchmark::DoNotOptimize(one_call_string(clone.get(), with->text));
            }
        });
    compare(
        name + "/to_ustring", 1.10,
        [with](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(to_ustring(with->bytes));
        },
        "clone_convert_close",
        [with](benchmark::State& state) {
            for (auto _ : state) {
                UErrorCode status = U_ZERO_ERROR;
                bare_converter const clone(ucnv_clone(with->bare.get(), &status));
                benchmark::DoNotOptimize(one_call_ustring(clone.get(), with->bytes));
            }
        });
}

} // namespace

void register_conversion_benchmarks() {
    struct {
        char const* encoding;
        char const* language;
    } const kinds[] = {{"UTF-8", "fr"}, {"ISO-8859-1", "de"}, {"Shift_JIS", "ja"}};
    for (auto const& kind : kinds)
        for (std::size_t const size : {1000U, 10000U, 100000U}) {
            std::string const name = std::string("convert/") + kind.encoding + "/" + std::to_string(size);
            auto const with = std::make_shared<sample>(kind.encoding, kind.language, size);
            register_buffer_forms(name, with);
            register_string_forms(name, with);
        }
    for (std::size_t const size : {20U, 200U, 1000U})
        register_front_end(size);
}

} // namespace bench
