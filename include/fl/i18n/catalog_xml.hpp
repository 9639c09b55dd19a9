/// @file
/// Reading the XML file of a message catalog.
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
#include <fl/i18n/expat_loader.hpp>
#include <fl/i18n/export.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

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

namespace detail {

/// Folds the text of an entry: each line is trimmed at both ends, empty lines vanish, and the others are
/// joined with one blank each.
///
/// Text comes in chunks, and a line ends with the chunk that holds a line feed, form feed or carriage return.
/// Breaks are expected to come as chunks of their own, as the XML parser delivers them; one in the middle of
/// a chunk stays in the text. White space is blank, tab, line feed, vertical tab, form feed and carriage
/// return. The cost is linear in the length of the text, however it is cut.
class FL_I18N_EXPORT MessageCatalogTextProcessor {
public:
    /// Appends a chunk; an empty one changes nothing.
    void add_chunk(std::string_view chunk);

    /// Ends the text and returns it; the processor is then empty, ready for the next one.
    std::string extract_complete_message();

    /// As `extract_complete_message`, into a string whose storage is reused.
    void extract_complete_message(std::string& message);

private:
    void fold_pending();

    std::string pending_;
    std::string complete_;
    std::ptrdiff_t searched_ = 0; // bytes of the pending text that are known to hold no break
};

} // namespace detail

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
    static char const* getCategoryTag() noexcept;      ///< "rsccat"
    static char const* getMessageTag() noexcept;       ///< "message"
    static char const* getEntryTag() noexcept;         ///< "entry"
    static char const* getVersionAttribute() noexcept; ///< "version"
    static char const* getLocaleAttribute() noexcept;  ///< "locale"
    static char const* getEntryKeyStr() noexcept;      ///< "key"

private:
    enum class parse_state : std::int32_t { in_root = 0, in_message = 1, in_entries = 2, before_root = 3 };

    MessageCatalogDataStore* store_;
    std::string key_; // empty between entries
    parse_state state_ = parse_state::before_root;
    detail::MessageCatalogTextProcessor text_;
    std::string message_; // only here to keep its storage from entry to entry
};

} // namespace fl::i18n
