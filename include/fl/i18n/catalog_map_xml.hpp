/// @file
/// Reading the files "catalog_map.xml", in which catalogs are listed for the completion of their names.
///
///     auto const keys = boost::make_shared<boost::unordered_set<fl::ustring>>();
///     auto const handler = boost::make_shared<fl::i18n::MetaInfoExpatEventHandler>(u"", keys);
///     fl::i18n::ExpatLoader(path, handler).load_file(); // keys {u"shop:cart", u"shop:checkout"}
///
/// Such a file is XML in UTF-8: a root element `MessageCatalogMap` with elements `entry`, whose attribute
/// "key" is a catalog identifier. <fl/i18n/message_id_completion.hpp> says where they lie.
///
/// The set is only declared here: callers include <boost/unordered_set.hpp>. A handler serves one thread.
#pragma once

#include <fl/i18n/codecvt_ascii.hpp>
#include <fl/i18n/expat_loader.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/shared_ptr.hpp>
#include <boost/unordered/unordered_set_fwd.hpp>

#include <vector>

namespace fl::i18n {

/// Collects the keys of map files. One object reads several files, one after the other, up to the first with
/// an element out of place or that breaks off inside its root element: what stands before that counts, and
/// nothing behind it, further files included. A key outside ASCII throws `CvtInvalidCharacter`.
class FL_I18N_EXPORT MetaInfoExpatEventHandler : public ExpatEventHandler {
public:
    /// `head` is kept for the record and decides nothing. `keys` receives the keys, widened; shared with the
    /// caller.
    MetaInfoExpatEventHandler(ustring const& head,
                              boost::shared_ptr<boost::unordered::unordered_set<ustring>> keys);
    ~MetaInfoExpatEventHandler() override;

    /// Start tags by element: each returns whether the element may stand here. `attributes` alternates names
    /// and values and ends in a null pointer.
    ///
    /// In an `entry` only "key" is known to have a value; behind any other name the next item is taken for a
    /// name again.
    /// @{
    bool process_root(char const** attributes);
    bool process_entry_tag(char const** attributes);
    /// @}

    bool doElementStart(char const* name, char const** attributes) override;
    bool doElementData(char const* data, int length) override;
    bool doElementEnd(char const* name) override;

private:
    enum state : int { map_in_root = 0, map_in_entry = 1, map_start = 2 };

    ustring head_;
    boost::shared_ptr<boost::unordered::unordered_set<ustring>> keys_;
    std::vector<int> states_{map_start};
    codecvt_ascii_to_ustring widen_{false};
};

} // namespace fl::i18n
