#include "catalog/xml_catalog_data_store.hpp"

#include "support/raise.hpp"

#include <boost/numeric/conversion/cast.hpp>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>

namespace fl::i18n {
namespace {

constexpr std::size_t first_buckets = 64;
// A step means hashing all keys anew: this makes half as many steps as doubling.
constexpr std::size_t bucket_growth = 4;

constexpr std::int32_t block_size = 8;

/// Widens bytes up to the first block that holds more than ASCII; the number of bytes done.
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

/// Writes at most one unit for each byte; the number of units written.
std::int32_t decode_utf8(char const* bytes, std::int32_t length, char16_t* units) noexcept {
    auto const ascii = widen_ascii(bytes, length, units);
    std::int32_t rest = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(units + ascii, length - ascii, &rest, bytes + ascii, length - ascii, 0xFFFD, nullptr,
                         &status);
    return ascii + rest;
}

void assign_utf8(icu::UnicodeString& text, char const* bytes, std::int32_t length) {
    char16_t* const units = text.getBuffer(length);
    if (!units)
        support::raise(std::bad_alloc());
    text.releaseBuffer(decode_utf8(bytes, length, units));
}

} // namespace

XMLCatalogDataStore::XMLCatalogDataStore() {
    messages_.max_load_factor(1.0F);
}

XMLCatalogDataStore::~XMLCatalogDataStore() = default;

void XMLCatalogDataStore::addEntry(std::string const& key, std::string const& value) {
    auto const length = boost::numeric_cast<std::int32_t>(value.size());
    if (messages_.size() == messages_.bucket_count())
        messages_.reserve(std::max(first_buckets, bucket_growth * messages_.size()));
    auto const [message, added] = messages_.try_emplace(key);
    if (!added)
        return;
    assign_utf8(message->second, value.data(), length);
    if (value.find('\\') != std::string::npos)
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
