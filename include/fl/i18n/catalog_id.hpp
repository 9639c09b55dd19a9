/// @file
/// Identifiers of message catalogs and of the messages in them.
///
/// An identifier is two or more components joined by single colons. A component begins with an ASCII letter
/// or "_" and goes on with ASCII letters, digits and "_"; no byte above 127 is accepted, and nothing limits
/// the number of components or their length. A catalog identifier names a catalog by the component that owns
/// it, any sub-directories, and its name. A message identifier is a catalog identifier, a colon and a key.
///
///     fl::i18n::MessageID const id("shop:checkout:total");
///     id.getCatalogID().getCatalogID(); // "shop:checkout"
///     id.getMsgKey();                   // "total"
///
/// Texts are checked at construction, so an object always names something well-formed or, when constructed
/// by default, nothing at all. Since a component cannot hold a separator or a dot, an identifier cannot lead
/// out of the directory tree in which catalogs are looked up.
///
/// Both classes are plain values: const objects may be read by several threads at once.
#pragma once

#include <fl/i18n/export.hpp>

#include <exception>
#include <string>

namespace fl::i18n {

/// Names one catalog. See the head of this file for the grammar.
class FL_I18N_EXPORT CatalogID {
public:
    /// The text is no catalog identifier. `what()` is a constant that does not repeat the text.
    class FL_I18N_EXPORT badCatalogIDException : public std::exception {
    public:
        /// "Bad Catalog ID"; valid for the life of the process.
        char const* what() const noexcept override;
    };

    /// The instance that every throw copies.
    static badCatalogIDException const badCatException_;

    /// An identifier that names nothing: all texts are empty.
    CatalogID() noexcept = default;

    /// Takes a well-formed identifier; throws `badCatalogIDException` for any other text.
    CatalogID(std::string const& id);

    /// Replaces the identifier. Throws `badCatalogIDException` for text that is not well-formed, the empty
    /// one included, and then leaves the object as it was.
    void setCatalogID(std::string const& id);

    /// Splits `id` at its first colon and checks nothing else. False, with both results untouched, for a text
    /// without a colon; false, with both results written, if either part is empty.
    bool extractIDComponents(std::string const& id, std::string& component, std::string& subComponents);

    [[nodiscard]] std::string getComponentName() const; ///< Text before the first colon.
    [[nodiscard]] std::string
    getSubComponentsNames() const;                  ///< Text behind the first colon, further colons included.
    [[nodiscard]] std::string getCatalogID() const; ///< The whole text.

    /// The whole text, NUL-terminated. The pointer is valid until the object is changed or destroyed.
    [[nodiscard]] char const* getCatalogIDStr() const noexcept;

private:
    std::string catalogId_;
    std::string componentName_;
    std::string subComponentsNames_;
};

/// Names one message in a catalog.
class FL_I18N_EXPORT MessageID {
public:
    /// The text is no message identifier. `what()` is a constant that does not repeat the text.
    class FL_I18N_EXPORT badMessageIDException : public std::exception {
    public:
        /// "Bad Message ID"; valid for the life of the process.
        char const* what() const noexcept override;
    };

    /// The instance that every throw copies.
    static badMessageIDException const badMsgException_;

    /// An identifier that names nothing: no text, an empty catalog, an empty key.
    MessageID() noexcept = default;

    /// Takes a well-formed identifier of at least three components, of which the last is the key; throws
    /// `badMessageIDException` for any other text.
    MessageID(std::string const& id);

    /// Composes an identifier. `key` is taken as it stands: keys outside the grammar exist in catalogs and
    /// can be reached in this way only. Throws `badMessageIDException` if it is empty.
    MessageID(CatalogID const& catalog, std::string const& key);

    /// Replaces the identifier. The current text changes nothing, whatever it holds. Throws
    /// `badMessageIDException` for any other text that the constructor refuses, and then leaves the object as
    /// it was.
    void setCompositeMsgID(std::string const& id);

    /// Fills the catalog and the key, but not the composite text, from the parts before and behind the last
    /// colon of `id`. False if there is no colon or the first part is no catalog identifier, with nothing
    /// changed; false also for an empty key, with the catalog replaced.
    bool extractIDComponents(std::string const& id);

    [[nodiscard]] CatalogID getCatalogID() const;     ///< The catalog that holds the message.
    [[nodiscard]] std::string getCompositeID() const; ///< The whole text.
    [[nodiscard]] std::string getMsgKey() const;      ///< The key within the catalog.

    /// The whole text, NUL-terminated. The pointer is valid until the object is changed or destroyed.
    [[nodiscard]] char const* getCompositeIDstr() const noexcept;

    /// As `getCatalogID`, without a copy; valid until the object is changed or destroyed.
    [[nodiscard]] CatalogID const& catalogID() const noexcept { return catalogId_; }

    /// As `getMsgKey`, without a copy; valid until the object is changed or destroyed.
    [[nodiscard]] std::string const& msgKey() const noexcept { return msgKey_; }

private:
    std::string compositeId_;
    CatalogID catalogId_;
    std::string msgKey_;
};

namespace idbase {

/// The catalog behind the text that a caller uses for it: the host application's old messages have
/// identifiers of two parts, "KESTRUNE:key", and lie in the catalog "KESTRUNE:legacy_two_part". Any other
/// text names its catalog itself and comes back as it is.
[[nodiscard]] FL_I18N_EXPORT std::string makeInternalCatalogName(std::string const& catalog);

} // namespace idbase
} // namespace fl::i18n
