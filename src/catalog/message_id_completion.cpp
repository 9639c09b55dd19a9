#include "catalog/catalog_map.hpp"
#include "conversion/codecs/ascii_text.hpp"
#include "support/ascii.hpp"
#include "support/raise.hpp"

#include <fl/i18n/catalog_id.hpp>
#include <fl/i18n/catalog_map_xml.hpp>
#include <fl/i18n/compare.hpp>
#include <fl/i18n/ctype_exceptions.hpp>
#include <fl/i18n/message_catalog_impl.hpp>
#include <fl/i18n/message_id_completion.hpp>

#include <boost/make_shared.hpp>
#include <boost/numeric/conversion/cast.hpp>
#include <boost/unordered_set.hpp>

#include <algorithm>
#include <string_view>

namespace fl::i18n {

namespace {

using filesystem::upath;
using key_set = boost::unordered::unordered_set<ustring>;

/// An input, parted at its last colon.
struct parted_input {
    explicit parted_input(std::u16string_view input)
        : whole(input),
          position(input.rfind(u':') + 1), // 0 without a colon
          head_with_colon(input.substr(0, position)),
          tail(input.substr(position)) {}

    bool has_colon() const noexcept { return position != 0; }
    std::u16string_view head() const noexcept {
        return head_with_colon.substr(0, position ? position - 1 : 0);
    }

    std::u16string_view whole;
    std::size_t position;
    std::u16string_view head_with_colon;
    std::u16string_view tail;
};

/// The text by which callers know a catalog, whose own name is `catalog`: what `makeInternalCatalogName`
/// turns into that name.
std::string toExternalCatalogText(std::string const& catalog) {
    std::string const component = catalog.substr(0, catalog.find(':'));
    return idbase::makeInternalCatalogName(component) == catalog ? component : catalog;
}

/// The keys of all map files; one that is broken gives what stands before the break.
key_set keys_of_maps(std::vector<upath> const& locations, std::u16string_view head) {
    auto const keys = boost::make_shared<key_set>();
    auto const handler = boost::make_shared<MetaInfoExpatEventHandler>(ustring(head), keys);
    for (upath const& location : locations)
        for (upath const& file : detail::catalog_maps_for(location, head))
            ExpatLoader(file, handler).load_file();
    return std::move(*keys);
}

/// For each catalog below the head, the part of its name that follows.
std::vector<ustring> parts_behind_head(std::vector<upath> const& locations, parted_input const& input) {
    std::vector<ustring> parts;
    for (ustring const& key : keys_of_maps(locations, input.head()))
        if (key.starts_with(input.head_with_colon)) {
            ustring part = key.substr(input.position);
            parts.push_back(part.erase(std::min(part.find(u':'), part.size())));
        }
    return parts;
}

std::vector<ustring> components(std::vector<upath> const& locations) {
    std::vector<ustring> result;
    for (upath const& location : locations)
        std::ranges::move(detail::components_with_map(location), std::back_inserter(result));
    return result;
}

bool begins_with(std::u16string_view text, std::u16string_view beginning) {
    std::u16string_view const begin = text.substr(0, beginning.size());
    return detail::compare(begin.data(), begin.size(), beginning.data(), beginning.size(),
                           case_insensitive()) == 0;
}

void add_parts(std::vector<ustring>& completions, std::vector<ustring> const& parts,
               parted_input const& input) {
    for (ustring const& part : parts) {
        ustring const name = ustring(input.head_with_colon) + part;
        ustring const text = detail::from_ascii(toExternalCatalogText(detail::to_ascii(name)));
        if (begins_with(text, input.whole))
            completions.push_back(text.substr(input.position) + u':');
    }
}

char lower_checked(char c) {
    if (static_cast<unsigned char>(c) >= 0x80)
        support::raise(foundation::ustring::CtypeInvalidCharacter());
    return support::to_ascii_lower(c);
}

bool key_begins_with(std::string_view key, std::string_view beginning) {
    return key.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), key.begin(),
                      [](char a, char b) { return lower_checked(a) == lower_checked(b); });
}

/// Adds the keys of the catalog that the head names. Where it names none, or one that does not load, there
/// are no keys.
void add_keys(std::vector<ustring>& completions, parted_input const& input) try {
    CatalogID const id(idbase::makeInternalCatalogName(detail::to_ascii(input.head())));
    std::shared_ptr<MessageCatalog> const catalog = MessageCatalog::GetMessageCatalog(id);
    std::string const beginning = detail::to_ascii(input.tail);
    for (std::string const& key : catalog->get_all_keys())
        if (key_begins_with(key, beginning))
            completions.push_back(detail::from_ascii(key));
} catch (MessageCatalog::MessageCatalogLoadFailed const&) {
} catch (CatalogID::badCatalogIDException const&) {
}

message_id_completions complete(ustring const& text) {
    parted_input const input(text);
    message_id_completions result;
    result.position = boost::numeric_cast<std::int32_t>(input.position);
    std::vector<upath> const locations = MessageCatalogImpl::getTopLevelResourceLocations();
    add_parts(result.completions,
              input.has_colon() ? parts_behind_head(locations, input) : components(locations), input);
    if (input.has_colon())
        add_keys(result.completions, input);
    return result;
}

} // namespace

message_id_completions getMessageIdCompletions(ustring const& input) try {
    return complete(input);
} catch (...) {
    return {}; // nobody who is typing can do anything about it
}

UnitTest::MsgCatTabComplTestHelper::MsgCatTabComplTestHelper(ustring const& mapPath) {
    detail::place_catalog_maps(mapPath);
}

UnitTest::MsgCatTabComplTestHelper::~MsgCatTabComplTestHelper() {
    detail::place_catalog_maps(ustring());
}

} // namespace fl::i18n
