#include <fl/i18n/message_catalog.hpp>

namespace fl::i18n {

MessageCatalog::MessageCatalogIncorrectRoot::~MessageCatalogIncorrectRoot() = default;

char const* MessageCatalog::MessageCatalogIncorrectRoot::what() const noexcept {
    return "Incorrect Message Root Set";
}

MessageCatalog::MessageCatalogNotInitialized::~MessageCatalogNotInitialized() = default;

char const* MessageCatalog::MessageCatalogNotInitialized::what() const noexcept {
    return "Message Catalog has not been initialized by a successful call to "
           "MessageCatalog::MessageCatalogInit";
}

MessageCatalog::MessageCatalogLoadFailed::MessageCatalogLoadFailed(std::string const& catalog)
    : text_("Message Catalog " + catalog +
            " was not loaded from the file. Please check file location, format or contents") {}

MessageCatalog::MessageCatalogLoadFailed::~MessageCatalogLoadFailed() = default;

char const* MessageCatalog::MessageCatalogLoadFailed::what() const noexcept {
    return text_.c_str();
}

MessageCatalog::MessageNotFound::MessageNotFound(std::string const& catalog, std::string const& key)
    : text_("Message Key " + key + " was not found in the catalog " + catalog) {}

MessageCatalog::MessageNotFound::~MessageNotFound() = default;

char const* MessageCatalog::MessageNotFound::what() const noexcept {
    return text_.c_str();
}

MessageCatalog::MessageFormatIncorrect::~MessageFormatIncorrect() = default;

char const* MessageCatalog::MessageFormatIncorrect::what() const noexcept {
    return "Incorrect Message Formatting Attempted";
}

MessageCatalog::IncorrectHoleCount::IncorrectHoleCount(unsigned long expected, unsigned long found)
    : expected_(expected),
      found_(found),
      text_("Incorrect number of parameters supplied. Expected : " + std::to_string(expected) +
            " but found : " + std::to_string(found)) {}

MessageCatalog::IncorrectHoleCount::~IncorrectHoleCount() = default;

char const* MessageCatalog::IncorrectHoleCount::what() const noexcept {
    return text_.c_str();
}

MessageCatalog::InvalidPathSupplied::~InvalidPathSupplied() = default;

char const* MessageCatalog::InvalidPathSupplied::what() const noexcept {
    return "Path is not valid!";
}

MessageCatalog::ResDirNotPresent::~ResDirNotPresent() = default;

char const* MessageCatalog::ResDirNotPresent::what() const noexcept {
    return "Resource directory not found on the path!";
}

MessageCatalog::ResourcePathNotFound::~ResourcePathNotFound() = default;

char const* MessageCatalog::ResourcePathNotFound::what() const noexcept {
    return "Resource path not found!";
}

MessageCatalog::ResPathRemovalUnknownError::ResPathRemovalUnknownError(std::string const& error)
    : text_("Unknown error while removal of path! Error : " + error) {}

MessageCatalog::ResPathRemovalUnknownError::~ResPathRemovalUnknownError() = default;

char const* MessageCatalog::ResPathRemovalUnknownError::what() const noexcept {
    return text_.c_str();
}

} // namespace fl::i18n
