/// The messages of one catalog file, in the form in which they are handed out.
#pragma once

#include <fl/i18n/catalog_xml.hpp>

#include <boost/unordered_map.hpp>
#include <unicode/unistr.h>

#include <string>
#include <vector>

namespace fl::i18n {

/// Converts and unescapes each text once, as it comes in, so that a look-up is a hash search and no more. Any
/// number of threads may search while none adds.
class XMLCatalogDataStore : public MessageCatalogDataStore {
public:
    XMLCatalogDataStore();
    ~XMLCatalogDataStore() override;

    /// Ill-formed UTF-8 becomes U+FFFD as ICU's converter does it. Throws `boost::numeric::positive_overflow`
    /// for a text of 2^31 bytes and more.
    void addEntry(std::string const& key, std::string const& value) override;

    /// The text of a message, or null. The pointer lives as long as the store.
    icu::UnicodeString const* find(std::string const& key) const;

    /// All keys, in the order of the hash table.
    std::vector<std::string> keys() const;

private:
    boost::unordered_map<std::string, icu::UnicodeString> messages_;
};

} // namespace fl::i18n
