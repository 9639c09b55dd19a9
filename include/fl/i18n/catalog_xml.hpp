/// @file
/// Reading the XML file of a message catalog, and where it lies.
///
/// A catalog is a `rsccat` element that holds one `message` element that holds `entry` elements:
///
///     <rsccat version="1.0" locale="de">
///       <message>
///         <entry key="greeting">Guten Tag</entry>
///         <entry key="total">Summe: {0} Euro,
///                            zahlbar bis {1}</entry>
///       </message>
///     </rsccat>
///
/// The file is read as UTF-8, whatever its XML declaration says; only UTF-16 is told by its first bytes.
/// "version" and "locale" are not looked at. An entry needs a non-empty "key" and holds text only; of two
/// entries with one key the first is kept. No other element is allowed. A file that breaks a rule, or goes
/// beyond the limits that <fl/i18n/expat_loader.hpp> names, is refused as a whole.
///
/// Lines of an entry are trimmed and joined by one blank each, so that a message can be laid out freely; see
/// `MessageCatalogTextProcessor`. After that, backslash escapes are read as ICU's `UnicodeString::unescape`
/// does: a line break that shall be kept is written as "\n". An unreadable escape empties the message.
///
/// Loader, handler and store belong to one load on one thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/catalog_text_processor.hpp>
#include <fl/i18n/expat_loader.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <string>

namespace fl::i18n {

/// Takes the messages of a catalog.
class FL_I18N_EXPORT MessageCatalogDataStore {
public:
    /// Takes a message: `key` and `value` are UTF-8; the value's lines are joined already, its escapes are
    /// still in it. A key that is there already keeps its first value.
    virtual void addEntry(std::string const& key, std::string const& value) = 0;
    virtual ~MessageCatalogDataStore();
};

/// Reads a catalog file into a store.
class FL_I18N_EXPORT MessageCatalogFileLoader {
public:
    /// True if the whole file was read. After false, or an exception of the store, the store may hold the
    /// messages that preceded the failure.
    virtual bool loadFile(filesystem::upath const& path, MessageCatalogDataStore& store) = 0;
    virtual ~MessageCatalogFileLoader();
};

/// The loader for the XML format.
class FL_I18N_EXPORT XMLCatalogFileLoader : public MessageCatalogFileLoader {
public:
    bool loadFile(filesystem::upath const& path, MessageCatalogDataStore& store) override;
    ~XMLCatalogFileLoader() override;
};

/// Feeds a store from the events of a catalog file. An object reads one file.
class FL_I18N_EXPORT MessageCatalogExpatEventHandler : public ExpatEventHandler {
public:
    /// `store` is not owned and must outlive the handler.
    explicit MessageCatalogExpatEventHandler(MessageCatalogDataStore* store);
    ~MessageCatalogExpatEventHandler() override;

    bool doElementStart(char const* name, char const** attributes) override;
    bool doElementData(char const* data, int length) override;
    bool doElementEnd(char const* name) override;

    /// Start tags by element: each returns whether the element may stand here. `attributes` alternates names
    /// and values and ends in a null pointer.
    ///
    /// In `rsccat` only "version" and "locale" are known to have a value; behind any other name the next item
    /// is taken for a name again. So a last attribute whose value reads "version" or "locale" is refused.
    bool processCatTag(char const** attributes);
    bool processMsgTag(char const** attributes);
    bool processEntryTag(char const** attributes);

    /// Passes a message on to the store.
    void addEntry(std::string const& key, std::string const& value);

    // The names of the format, as constants that are valid for the life of the process.
    [[nodiscard]] static char const* getCategoryTag() noexcept;      ///< "rsccat"
    [[nodiscard]] static char const* getMessageTag() noexcept;       ///< "message"
    [[nodiscard]] static char const* getEntryTag() noexcept;         ///< "entry"
    [[nodiscard]] static char const* getVersionAttribute() noexcept; ///< "version"
    [[nodiscard]] static char const* getLocaleAttribute() noexcept;  ///< "locale"
    [[nodiscard]] static char const* getEntryKeyStr() noexcept;      ///< "key"

private:
    enum class parse_state : std::int32_t { in_root = 0, in_message = 1, in_entries = 2, before_root = 3 };

    MessageCatalogDataStore* store_;
    std::string key_; // empty between entries
    parse_state state_ = parse_state::before_root;
    detail::MessageCatalogTextProcessor text_;
    std::string message_; // only here to keep its storage from entry to entry
};

/// Helpers around catalog files.
class FL_I18N_EXPORT MessageCatalogUtility {
public:
    /// Where the file of a catalog lies below a resource location, with "%S" for the locale: "a:b:c" gives
    /// "a/%S/b/c.xml". Empty if `id` is empty, has no colon, or ends in one. Text outside ASCII throws
    /// `CvtInvalidCharacter`. Nothing else is checked: pass what `CatalogID` has accepted.
    [[nodiscard]] static ustring obtainXMLFilePathPattern(std::string const& id);
};

} // namespace fl::i18n
