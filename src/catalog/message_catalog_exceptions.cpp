#include <fl/i18n/message_catalog_exceptions.hpp>

namespace fl::i18n {

char const* MessageCatalog::MessageCatalogIncorrectRoot::what() const noexcept {
    return "Incorrect Message Root Set";
}

char const* MessageCatalog::MessageCatalogNotInitialized::what() const noexcept {
    return "Message Catalog has not been initialized by a successful call to "
           "MessageCatalog::MessageCatalogInit";
}

MessageCatalog::MessageCatalogLoadFailed::MessageCatalogLoadFailed(std::string const& catalog)
    : message_("Message Catalog " + catalog +
               " was not loaded from the file. Please check file location, format or contents") {}

char const* MessageCatalog::MessageCatalogLoadFailed::what() const noexcept {
    return message_.c_str();
}

MessageCatalog::MessageNotFound::MessageNotFound(std::string const& catalog, std::string const& key)
    : message_("Message Key " + key + " was not found in the catalog " + catalog) {}

char const* MessageCatalog::MessageNotFound::what() const noexcept {
    return message_.c_str();
}

char const* MessageCatalog::MessageFormatIncorrect::what() const noexcept {
    return "Incorrect Message Formatting Attempted";
}

MessageCatalog::IncorrectHoleCount::IncorrectHoleCount(unsigned long expected, unsigned long found)
    : expected_(expected),
      found_(found),
      message_("Incorrect number of parameters supplied. Expected : " + std::to_string(expected) +
               " but found : " + std::to_string(found)) {}

char const* MessageCatalog::IncorrectHoleCount::what() const noexcept {
    return message_.c_str();
}

char const* MessageCatalog::InvalidPathSupplied::what() const noexcept {
    return "Path is not valid!";
}

char const* MessageCatalog::ResDirNotPresent::what() const noexcept {
    return "Resource directory not found on the path!";
}

char const* MessageCatalog::ResourcePathNotFound::what() const noexcept {
    return "Resource path not found!";
}

MessageCatalog::ResPathRemovalUnknownError::ResPathRemovalUnknownError(std::string const& error)
    : message_("Unknown error while removal of path! Error : " + error) {}

char const* MessageCatalog::ResPathRemovalUnknownError::what() const noexcept {
    return message_.c_str();
}

} // namespace fl::i18n
