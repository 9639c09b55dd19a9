/// @file
/// The exceptions of message catalogs, which are nested in `MessageCatalog`. <fl/i18n/message_catalog.hpp>
/// says what each is about, and includes this file.
#pragma once

#include <fl/i18n/message_catalog.hpp>

#include <exception>
#include <string>

namespace fl::i18n {

class MessageCatalog::MessageCatalogIncorrectRoot : public std::exception {
public:
    char const* what() const noexcept override;
};

class MessageCatalog::MessageCatalogNotInitialized : public std::exception {
public:
    char const* what() const noexcept override;
};

class MessageCatalog::MessageCatalogLoadFailed : public std::exception {
public:
    explicit MessageCatalogLoadFailed(std::string const& catalog);
    /// Names the catalog; valid as long as this object.
    char const* what() const noexcept override;

private:
    std::string message_;
};

class MessageCatalog::MessageNotFound : public std::exception {
public:
    MessageNotFound(std::string const& catalog, std::string const& key);
    /// Names the key and the catalog; valid as long as this object.
    char const* what() const noexcept override;

private:
    std::string message_;
};

class MessageCatalog::MessageFormatIncorrect : public std::exception {
public:
    char const* what() const noexcept override;
};

class MessageCatalog::IncorrectHoleCount : public std::exception {
public:
    /// `expected` is the number of holes and `found` the number of values; from `GetCustomHoleType`, the
    /// number asked for and the number of holes.
    IncorrectHoleCount(unsigned long expected, unsigned long found);
    /// Names both numbers; valid as long as this object.
    char const* what() const noexcept override;

    [[nodiscard]] unsigned long expected() const noexcept { return expected_; }
    [[nodiscard]] unsigned long found() const noexcept { return found_; }

private:
    unsigned long expected_;
    unsigned long found_;
    std::string message_;
};

class MessageCatalog::InvalidPathSupplied : public std::exception {
public:
    char const* what() const noexcept override;
};

class MessageCatalog::ResDirNotPresent : public std::exception {
public:
    char const* what() const noexcept override;
};

class MessageCatalog::ResourcePathNotFound : public std::exception {
public:
    char const* what() const noexcept override;
};

class MessageCatalog::ResPathRemovalUnknownError : public std::exception {
public:
    explicit ResPathRemovalUnknownError(std::string const& error);
    /// Ends in the text of the error behind this one; valid as long as this object.
    char const* what() const noexcept override;

private:
    std::string message_;
};

} // namespace fl::i18n
