/// @file
/// Completion of message identifiers as a person types them.
///
/// Given the beginning of an identifier, lists what may follow: components first, then the further parts of
/// catalog names, and at last the keys of the catalog.
///
///     fl::i18n::message_id_completions const found = fl::i18n::getMessageIdCompletions(u"shop:ca");
///     // completions {"cart:", "catalogue:"}, position 5: each replaces the text from there on
///
/// Catalogs are known by an index beside the resources: for a location "root/resources" the files
/// "root/derived/share/resources/<component>/.../catalog_map.xml", for which see
/// <fl/i18n/catalog_map_xml.hpp>. Keys come from the catalog itself, in the global locale.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <vector>

namespace fl::i18n {

/// What may follow an input.
struct message_id_completions {
    /// In no particular order, and with repetitions where several catalogs begin alike; parts that need more
    /// after them end in ":" and stand before keys, which do not.
    std::vector<ustring> completions;
    std::int32_t position = 0; ///< code unit of the input from which on a completion replaces it
};

/// The completions of `input`, which is compared without case behind its last colon and with case before it.
/// Where nothing fits the list is empty and the position that of the input.
///
/// Never throws. When anything fails the list is empty and the position 0. It fails
///
/// - before the resource locations are set;
/// - for a letter outside ASCII before the last colon, and behind it where the catalog exists;
/// - where that catalog has a key with such a letter in the part that is compared, which is the whole key
///   where nothing is typed behind the colon.
///
/// Reads the disk at every call. Thread-safe.
[[nodiscard]] FL_I18N_EXPORT message_id_completions getMessageIdCompletions(ustring const& input);

namespace UnitTest {

/// Moves the index of catalogs for a test: `mapPath` takes the place of "../derived/share/resources/"
/// relative to a resource location; empty means the location itself, as it does after the object has gone.
/// Not while another thread completes.
class FL_I18N_EXPORT MsgCatTabComplTestHelper {
public:
    explicit MsgCatTabComplTestHelper(ustring const& mapPath);
    ~MsgCatTabComplTestHelper();
    MsgCatTabComplTestHelper(MsgCatTabComplTestHelper const&) = delete;
    MsgCatTabComplTestHelper& operator=(MsgCatTabComplTestHelper const&) = delete;
};

} // namespace UnitTest
} // namespace fl::i18n
