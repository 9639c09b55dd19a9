// The texts of a catalog, from the UTF-8 of its file to the UTF-16 in which they are handed out.

#include "catalog/xml_catalog_data_store.hpp"

#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <boost/numeric/conversion/converter_policies.hpp>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <new>

namespace fl::i18n {
namespace {

constexpr std::size_t first_buckets = 64;
/// How the hash table grows. A step means hashing all keys anew: this makes half as many steps as doubling.
constexpr std::size_t bucket_growth = 4;

constexpr std::int32_t block_size = 8;

/// Widens bytes up to the first block that holds more than ASCII; the number of bytes done. Unlike
/// `support::widened` it looks at the bytes as it goes, and allocates nothing.
std::int32_t widen_ascii(char const* bytes, std::int32_t length, char16_t* units) noexcept {
    std::int32_t done = 0;
    for (; length - done >= block_size; done += block_size) {
        std::uint64_t block = 0;
        std::memcpy(&block, bytes + done, block_size);
        if ((block & 0x8080808080808080U) != 0)
            break;
        std::copy_n(bytes + done, block_size, units + done);
    }
    return done;
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // in ICU's macros

/// Writes at most one unit for each byte; the number of units written. Each ill-formed sequence becomes
/// U+FFFD.
std::int32_t decode_utf8(char const* bytes, std::int32_t length, char16_t* units) noexcept {
    std::int32_t written = 0;
    for (std::int32_t read = 0; read < length;) {
        std::int32_t const ascii = widen_ascii(bytes + read, length - read, units + written);
        read += ascii;
        written += ascii;
        for (std::int32_t const stop = std::min(length, read + block_size); read < stop;) {
            UChar32 c = 0;
            U8_NEXT_OR_FFFD(bytes, read, length, c);
            U16_APPEND_UNSAFE(units, written, c);
        }
    }
    return written;
}

#pragma GCC diagnostic pop

/// The text of UTF-8 bytes. One of the usual length is decoded aside first, so that it takes just the room of
/// its units: a short one fits into the object itself.
icu::UnicodeString text_from_utf8(char const* bytes, std::int32_t length) {
    std::array<char16_t, 512> aside;
    if (length <= static_cast<std::int32_t>(aside.size()))
        return {aside.data(), decode_utf8(bytes, length, aside.data())};
    icu::UnicodeString text;
    char16_t* const units = text.getBuffer(length);
    if (!units)
        support::raise(std::bad_alloc());
    text.releaseBuffer(decode_utf8(bytes, length, units));
    return text;
}

} // namespace

XMLCatalogDataStore::XMLCatalogDataStore() {
    messages_.max_load_factor(1.0F);
}

XMLCatalogDataStore::~XMLCatalogDataStore() = default;

void XMLCatalogDataStore::addEntry(std::string const& key, std::string const& value) {
    std::int32_t const length =
        support::to_icu_length(value.size(), [] { support::raise(boost::numeric::positive_overflow()); });
    if (messages_.size() == messages_.bucket_count())
        messages_.reserve(std::max(first_buckets, bucket_growth * messages_.size()));
    auto const [message, added] = messages_.try_emplace(key, text_from_utf8(value.data(), length));
    if (added && value.find('\\') != std::string::npos)
        message->second = message->second.unescape();
}

icu::UnicodeString const* XMLCatalogDataStore::find(std::string const& key) const {
    auto const found = messages_.find(key);
    return found == messages_.end() ? nullptr : &found->second;
}

std::vector<std::string> XMLCatalogDataStore::keys() const {
    std::vector<std::string> result;
    result.reserve(messages_.size());
    for (auto const& message : messages_)
        result.push_back(message.first);
    return result;
}

} // namespace fl::i18n
