/// @file
/// Message catalogs of XML files, and the filling of holes without the count of values that
/// `MessageCatalog::GetFormattedMessage` insists on.
///
///     fl::i18n::MessageCatalogImpl const catalog("shop:checkout", path, "de");
///     fl::ustring const text = catalog.get_message_for_key("total");             // "Summe: {0} Euro"
///     fl::i18n::MessageCatalogImpl::getFormattedMessage(text, {7LL});            // "Summe: 7 Euro"
///
/// Callers who look messages up by identifier and locale use <fl/i18n/message_catalog.hpp>, which makes and
/// keeps these objects. The static functions are thread-safe; so are those of a `const` object.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/message_catalog.hpp>

#include <memory>
#include <string>
#include <vector>

namespace fl::i18n {

class MessageCatalogFileLoader;
class XMLCatalogDataStore;

/// A catalog loaded from an XML file; see `<fl/i18n/catalog_xml.hpp>` for the format.
class FL_I18N_EXPORT MessageCatalogImpl : public MessageCatalog {
public:
    /// Loads `path`. The two names are kept as given and not interpreted: `catalogName` is the identifier
    /// that exceptions and `get_catalog_name` show. Throws `MessageCatalogLoadFailed` if the file is missing,
    /// not readable or not a catalog.
    MessageCatalogImpl(std::string const& catalogName, filesystem::upath const& path,
                       std::string const& localeName);
    ~MessageCatalogImpl() override;

    /// Loads the file anew in place of what was loaded before; the constructor does this once. Not to be
    /// called while another thread uses the object. Throws `MessageCatalogLoadFailed`, and then every look-up
    /// does; `get_all_keys` then gives what was read before the fault.
    void initializeXMLCatalog();

    [[nodiscard]] ustring get_message_for_key(std::string const& key) const override;
    [[nodiscard]] std::vector<std::string> get_all_keys() const override;
    [[nodiscard]] std::string get_locale_name() const override;
    [[nodiscard]] ustring get_message_for_key(idbase::BaseMsgID const& id) const override;
    [[nodiscard]] std::string get_catalog_name() const override;

    /// The directories that are searched for catalogs, in order, additional ones included. Throws
    /// `MessageCatalogNotInitialized` if no location was set yet.
    [[nodiscard]] static std::vector<filesystem::upath> getTopLevelResourceLocations();

    /// Fills the holes of `message` without checking their number: "{0}" takes the first value, "{1}" the
    /// second; with any other name in the message, values go to holes as in
    /// `MessageCatalog::GetFormattedMessage`. A hole without a value stays in the text, a value without a
    /// hole is ignored. Throws `MessageFormatIncorrect`.
    [[nodiscard]] static ustring getFormattedMessage(ustring const& message,
                                                     std::vector<hole_value> const& holes);

    /// `MessageCatalog::GetFormattedMessage` if `strict`, else `getFormattedMessage`.
    [[nodiscard]] static ustring GetFormattedMessageImpl(ustring const& message,
                                                         std::vector<hole_value> const& holes, bool strict);

    /// `MessageCatalog::GetFormattedMessage` with a function, on the caller's list of values. Throws
    /// `std::bad_function_call` for an empty `fill` if there are holes to fill.
    [[nodiscard]] static ustring GetFormattedMessageImpl(ustring const& message,
                                                         std::vector<hole_value>& holes,
                                                         hole_fill_function const& fill);

private:
    std::string catalogName_;
    filesystem::upath path_;
    std::string localeName_;
    // In this order: the store goes before the loader that filled it.
    std::unique_ptr<MessageCatalogFileLoader> fileLoader_;
    std::unique_ptr<XMLCatalogDataStore> dataStore_;
    bool loaded_ = false;
};

} // namespace fl::i18n
