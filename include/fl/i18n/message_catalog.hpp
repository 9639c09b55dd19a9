/// @file
/// Message catalogs: translated texts, looked up by identifier and locale.
///
/// A catalog is one XML file per locale. The process keeps one list of resource directories and one cache of
/// loaded catalogs; both are reached through the static functions of `MessageCatalog`. A look-up finds the
/// catalog's file for the locale, or for the nearest locale that has one, loads it once and shares the
/// object.
///
///     using fl::i18n::MessageCatalog;
///     MessageCatalog::MessageCatalogInit(u"/opt/shop"); // has resources/shop/de/checkout.xml
///     fl::ustring const text = MessageCatalog::get_message(fl::i18n::MessageID("shop:checkout:total"));
///
/// A text may have holes in the pattern language of ICU's `MessageFormat`, such as "{0} of {1}". They are
/// filled by `GetFormattedMessage`, or by `get_message` when the identifier carries values. Numbers and dates
/// in a hole always follow the rules of en_US_POSIX, so that a message does not depend on the user's locale
/// twice.
///
/// Failures are exceptions, nested in `MessageCatalog`; each can be carried to another thread by a
/// `boost::exception_ptr` or `std::exception_ptr`.
#pragma once

#include <fl/i18n/catalog_id.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/idbase.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/noncopyable.hpp>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace fl::i18n {

class QnLocale;
/// Fills holes in place: called with the list of all hole values and, for one hole, its custom type (empty if
/// the name has none) and its number. It may write any element of the list. The reference in the pair is
/// valid during the call only.
///
///     auto const fill = [](std::vector<hole_value>& values, auto const& hole) {
///         if (hole.first == u"date")                // the custom type, of "{0_date}"
///             values[hole.second] = fl::ustring(u"2001-02-03");
///     };
using hole_fill_function =
    std::function<void(std::vector<hole_value>&, std::pair<ustring const&, unsigned long const> const&)>;

/// A loaded catalog, read-only, and the home of the process-wide catalog functions.
///
/// Any number of threads may use the operations of one object at once; they take no lock. The static
/// functions are thread-safe too.
class FL_I18N_EXPORT MessageCatalog : private boost::noncopyable {
public:
    /// No directory with resources was given, or none of those given exists.
    class FL_I18N_EXPORT MessageCatalogIncorrectRoot;
    /// An operation needs the list of resource locations before it was set.
    class FL_I18N_EXPORT MessageCatalogNotInitialized;
    /// A catalog has no file for the locale or its fallbacks, or the file does not load.
    class FL_I18N_EXPORT MessageCatalogLoadFailed;
    /// A catalog has no message of that key.
    class FL_I18N_EXPORT MessageNotFound;
    /// A message is no pattern that ICU accepts, has more than 50 holes with patterns of their own (select,
    /// plural, choice: ICU would follow them by recursion), mixes words and numbers as names, or a value does
    /// not suit its hole.
    class FL_I18N_EXPORT MessageFormatIncorrect;
    /// The number of values differs from the number of holes.
    class FL_I18N_EXPORT IncorrectHoleCount;
    /// A resource location to remove was given as an empty path.
    class FL_I18N_EXPORT InvalidPathSupplied;
    /// A resource location to remove is no longer on the disk.
    class FL_I18N_EXPORT ResDirNotPresent;
    /// A resource location to remove is not among the additional ones.
    class FL_I18N_EXPORT ResourcePathNotFound;
    /// Removing a resource location failed half-way.
    class FL_I18N_EXPORT ResPathRemovalUnknownError;

    /// The text stored under `key`, raw: holes stay in it. Keys are compared byte by byte. There is no
    /// fallback to another locale at this level: throws `MessageNotFound` if this catalog has no such key.
    [[nodiscard]] virtual ustring get_message_for_key(std::string const& key) const = 0;

    /// All keys, in unspecified order.
    [[nodiscard]] virtual std::vector<std::string> get_all_keys() const = 0;

    /// The locale whose directory the catalog came from: possibly a fallback of the one that was asked for.
    [[nodiscard]] virtual std::string get_locale_name() const = 0;

    /// The text for `id.key` with the values that `id` carries in its holes, as by
    /// `MessageCatalogImpl::getFormattedMessage`. Throws `MessageNotFound` if `id` names another catalog or
    /// an unknown key, and `MessageFormatIncorrect` if the text cannot be formatted.
    [[nodiscard]] virtual ustring get_message_for_key(idbase::BaseMsgID const& id) const = 0;

    /// The identifier of the catalog, as "component:name".
    [[nodiscard]] virtual std::string get_catalog_name() const = 0;

    virtual ~MessageCatalog();

    /// Sets the list of resource locations: for each root, in order, its directory "resources". A root
    /// without one is skipped; an empty root stands for the current directory.
    ///
    /// The first success decides: later calls change nothing and return whether they describe the same list.
    /// Additional locations count, so the answer is false while there are any.
    /// Throws `MessageCatalogIncorrectRoot`, and leaves the list empty, if no root survives.
    static bool MessageCatalogInit(std::vector<ustring> const& roots);
    /// The same for a single root.
    static bool MessageCatalogInit(ustring const& root);
    /// Sets the list, then loads `catalogs` for the global locale; null pointers are skipped. False also when
    /// one of them does not load, and the rest is then not tried. Throws what `openCatalog` does otherwise.
    static bool MessageCatalogInit(std::vector<ustring> const& roots,
                                   std::vector<idbase::BaseCatalogID const*> const& catalogs);
    /// The same for a single root.
    static bool MessageCatalogInit(ustring const& root,
                                   std::vector<idbase::BaseCatalogID const*> const& catalogs);

    /// The catalog for `locale`, from the cache or else from the first file found for the locale, its parent,
    /// and English. If no location was set yet, sets that of the installation, or of the current directory
    /// where the library lies in no install tree; `MessageCatalogIncorrectRoot` if there is none. Throws
    /// `MessageCatalogLoadFailed` if there is no file, or the one found does not load, and what
    /// `filesystem::status` throws where a candidate cannot be looked at (a name too long, no permission, a
    /// loop of links). A failure is not remembered.
    [[nodiscard]] static std::shared_ptr<MessageCatalog> GetMessageCatalog(CatalogID const& id,
                                                                           QnLocale const& locale);
    /// The same for the global locale.
    [[nodiscard]] static std::shared_ptr<MessageCatalog> GetMessageCatalog(CatalogID const& id);

    /// `GetMessageCatalog` for the catalog that `id` names; throws `CatalogID::badCatalogIDException` if its
    /// text is not well-formed.
    static std::shared_ptr<MessageCatalog> openCatalog(idbase::BaseCatalogID const& id,
                                                       QnLocale const& locale);
    /// The same for the global locale.
    static std::shared_ptr<MessageCatalog> openCatalog(idbase::BaseCatalogID const& id);

    /// The raw text of a message: holes stay in it. Throws as `GetMessageCatalog` does, and
    /// `MessageNotFound`.
    [[nodiscard]] static ustring get_message(MessageID const& id, QnLocale const& locale);
    /// The same for the global locale.
    [[nodiscard]] static ustring get_message(MessageID const& id);
    /// The text of a message with the values that `id` carries in its holes, as by
    /// `MessageCatalogImpl::getFormattedMessage`. Throws as `openCatalog` does, and `MessageNotFound` and
    /// `MessageFormatIncorrect`.
    [[nodiscard]] static ustring get_message(idbase::BaseMsgID const& id, QnLocale const& locale);
    /// The same for the global locale.
    [[nodiscard]] static ustring get_message(idbase::BaseMsgID const& id);
    /// The same for the classic locale, which is English.
    [[nodiscard]] static ustring get_default_locale_message(idbase::BaseMsgID const& id);

    /// Appends the directory "resources" of each root, in order, to the list of resource locations: behind
    /// all others, so that what they hold is found only where no earlier location has a file of the same
    /// locale. Catalogs that are loaded already stay as they are until they are flushed. All or nothing:
    /// throws `MessageCatalogIncorrectRoot` if `roots` is empty or one of them has no such directory, and
    /// `MessageCatalogNotInitialized` if no location was set before; then nothing has changed. A location may
    /// stand in the list several times. Each new list is kept for the life of the process.
    static void set_additional_resource_locations(std::vector<ustring> const& roots);

    /// Takes a root that was added by `set_additional_resource_locations` out of the list again, however
    /// often it was added, and flushes the catalogs whose English files lie below it, unless the same
    /// directory is in the list from the start. Catalogs that callers hold stay valid.
    ///
    /// Throws `InvalidPathSupplied` for an empty root, `MessageCatalogNotInitialized`, `ResourcePathNotFound`
    /// if it was not added, `ResDirNotPresent` if the directory has gone from the disk, and
    /// `ResPathRemovalUnknownError` when the walk fails: on a component without an English directory, a
    /// directory that cannot be read, a file whose name makes no catalog identifier. The location then stays,
    /// though some of its catalogs may have been flushed, and the removal may be tried again. So a directory
    /// such as ".git" or "lost+found" among the components keeps a location from being removed. Look-ups wait
    /// until the walk has ended.
    ///
    /// Roots are compared as text, in native form: "/a/" is "/a", but "/a/." is another root. The empty root,
    /// which may be added, cannot be removed.
    static void remove_additional_resource_location(ustring const& root);

    /// Forgets a catalog in all locales, so that the next look-up reads its file again. Objects that callers
    /// hold stay valid. No error if the catalog is not loaded.
    static void FlushCatalogFromCache(CatalogID const& id);

    /// Fills the holes of `message`, checking their number.
    ///
    /// With numbered holes ("{0}", "{1_date}") the values go to the holes in the order of their numbers,
    /// those of one number in the order of the pattern; equal names next to each other in that order count
    /// once. So for "{2} {0} {0}" the first value fills "{0}", the second "{2}". With named holes ("{name}")
    /// they go in the order of the pattern, repeats included. A lone apostrophe stands for itself.
    ///
    /// Throws `IncorrectHoleCount` when the numbers of values and of holes differ, and
    /// `MessageFormatIncorrect` when the pattern or a value is refused. A hole whose name begins with neither
    /// a letter nor a digit throws `std::invalid_argument`, a number too large `std::out_of_range`.
    [[nodiscard]] static ustring GetFormattedMessage(ustring const& message,
                                                     std::vector<hole_value> const& holes);

    /// Fills the holes of `message` with values that a function provides: `fill` is called once for each
    /// hole, in the order of the numbers, on a list of `holeCount` empty texts. Its exceptions pass through.
    ///
    /// A message with named holes takes no values by this form; it comes back unformatted if `holeCount` is
    /// 0. The list is made first: an absurd `holeCount` throws `std::length_error` or `std::bad_alloc`.
    /// Otherwise throws as the form above, `MessageFormatIncorrect` if `holeCount` is not 0 and `fill` is
    /// empty, and `boost::numeric::positive_overflow` for a hole number of 2^31 or more.
    [[nodiscard]] static ustring GetFormattedMessage(ustring const& message, unsigned long holeCount,
                                                     hole_fill_function const& fill);

    /// The custom type of hole `number`, as "date" for number 1 of "{1_date}"; empty if no hole of that
    /// number has one. Throws `IncorrectHoleCount` (with `number` as the expected count) if `number` exceeds
    /// the count of holes, and what `GetFormattedMessage` throws for a pattern or a name that it refuses. A
    /// named hole has no number: it throws `std::invalid_argument`.
    [[nodiscard]] static ustring GetCustomHoleType(ustring const& message, unsigned long number);
};

} // namespace fl::i18n

#include <fl/i18n/message_catalog_exceptions.hpp>
