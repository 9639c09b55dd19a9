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
    MessageCatalogIncorrectRoot() noexcept = default;
    MessageCatalogIncorrectRoot(MessageCatalogIncorrectRoot const&) noexcept = default;
    MessageCatalogIncorrectRoot& operator=(MessageCatalogIncorrectRoot const&) noexcept = default;
    ~MessageCatalogIncorrectRoot() override;
    char const* what() const noexcept override;
};

class MessageCatalog::MessageCatalogNotInitialized : public std::exception {
public:
    MessageCatalogNotInitialized() noexcept = default;
    MessageCatalogNotInitialized(MessageCatalogNotInitialized const&) noexcept = default;
    MessageCatalogNotInitialized& operator=(MessageCatalogNotInitialized const&) noexcept = default;
    ~MessageCatalogNotInitialized() override;
    char const* what() const noexcept override;
};

class MessageCatalog::MessageCatalogLoadFailed : public std::exception {
public:
    explicit MessageCatalogLoadFailed(std::string const& catalog);
    MessageCatalogLoadFailed(MessageCatalogLoadFailed const&) = default;
    MessageCatalogLoadFailed& operator=(MessageCatalogLoadFailed const&) = default;
    ~MessageCatalogLoadFailed() override;
    /// Names the catalog; valid as long as this object.
    char const* what() const noexcept override;

private:
    std::string text_;
};

class MessageCatalog::MessageNotFound : public std::exception {
public:
    MessageNotFound(std::string const& catalog, std::string const& key);
    MessageNotFound(MessageNotFound const&) = default;
    MessageNotFound& operator=(MessageNotFound const&) = default;
    ~MessageNotFound() override;
    /// Names the key and the catalog; valid as long as this object.
    char const* what() const noexcept override;

private:
    std::string text_;
};

class MessageCatalog::MessageFormatIncorrect : public std::exception {
public:
    MessageFormatIncorrect() noexcept = default;
    MessageFormatIncorrect(MessageFormatIncorrect const&) noexcept = default;
    MessageFormatIncorrect& operator=(MessageFormatIncorrect const&) noexcept = default;
    ~MessageFormatIncorrect() override;
    char const* what() const noexcept override;
};

class MessageCatalog::IncorrectHoleCount : public std::exception {
public:
    /// `expected` is the number of holes and `found` the number of values; from `GetCustomHoleType`, the
    /// number asked for and the number of holes.
    IncorrectHoleCount(unsigned long expected, unsigned long found);
    IncorrectHoleCount(IncorrectHoleCount const&) = default;
    IncorrectHoleCount& operator=(IncorrectHoleCount const&) = default;
    ~IncorrectHoleCount() override;
    /// Names both numbers; valid as long as this object.
    char const* what() const noexcept override;

    unsigned long expected() const noexcept { return expected_; }
    unsigned long found() const noexcept { return found_; }

private:
    unsigned long expected_;
    unsigned long found_;
    std::string text_;
};

class MessageCatalog::InvalidPathSupplied : public std::exception {
public:
    InvalidPathSupplied() noexcept = default;
    InvalidPathSupplied(InvalidPathSupplied const&) noexcept = default;
    InvalidPathSupplied& operator=(InvalidPathSupplied const&) noexcept = default;
    ~InvalidPathSupplied() override;
    char const* what() const noexcept override;
};

class MessageCatalog::ResDirNotPresent : public std::exception {
public:
    ResDirNotPresent() noexcept = default;
    ResDirNotPresent(ResDirNotPresent const&) noexcept = default;
    ResDirNotPresent& operator=(ResDirNotPresent const&) noexcept = default;
    ~ResDirNotPresent() override;
    char const* what() const noexcept override;
};

class MessageCatalog::ResourcePathNotFound : public std::exception {
public:
    ResourcePathNotFound() noexcept = default;
    ResourcePathNotFound(ResourcePathNotFound const&) noexcept = default;
    ResourcePathNotFound& operator=(ResourcePathNotFound const&) noexcept = default;
    ~ResourcePathNotFound() override;
    char const* what() const noexcept override;
};

class MessageCatalog::ResPathRemovalUnknownError : public std::exception {
public:
    explicit ResPathRemovalUnknownError(std::string const& error);
    ResPathRemovalUnknownError(ResPathRemovalUnknownError const&) = default;
    ResPathRemovalUnknownError& operator=(ResPathRemovalUnknownError const&) = default;
    ~ResPathRemovalUnknownError() override;
    /// Ends in the text of the error behind this one; valid as long as this object.
    char const* what() const noexcept override;

private:
    std::string text_;
};

} // namespace fl::i18n
