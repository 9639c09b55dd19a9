/// @file
/// The exceptions of reading an XML locale database.
///
/// `what()` is the stable error id, for programs and logs; `message()` is the sentence for people:
///
///     try {
///         fl::i18n::lcmgmt::parseLcData(database, path);
///     } catch (fl::i18n::lcmgmt::LcRscExceptionBase const& e) {
///         std::cerr << e.message(); // "Failed to open file /opt/x/bin/lcdata.xml."
///     }
///
/// In a message a path stands byte by byte: printable ASCII as it is, any other byte as its value in
/// upper-case hexadecimal. The objects are thrown so that they can travel to another thread in a
/// `boost::exception_ptr` or a `std::exception_ptr`; handlers catch the classes declared here.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

/// Root of the family.
class FL_I18N_EXPORT LcRscExceptionBase : public std::exception {
public:
    /// The error id, the same text as `error_id()`, not the message. Valid as long as the exception.
    char const* what() const noexcept override;

    /// The error id, "fl:i18n:" and the name of the class.
    [[nodiscard]] std::string const& error_id() const noexcept { return id_; }
    /// The number of the class within the family: 2 to 5.
    [[nodiscard]] std::int32_t code() const noexcept { return code_; }
    /// An English sentence, with the path or the place of the error. It is what start-up keeps as its
    /// warning.
    [[nodiscard]] std::string const& message() const noexcept { return message_; }

protected:
    LcRscExceptionBase(std::string error_id, std::int32_t code, std::string message);

private:
    virtual void anchor() const; // keeps the virtual table and the type information in one object file

    std::string id_;
    std::int32_t code_;
    std::string message_;
};

/// The file is missing, is neither a regular file nor a directory, or may not be read; also for a path that
/// no file can have. Nothing was applied. Code 2, "Failed to open file ...".
class FL_I18N_EXPORT LcRscOpenFileFailure : public LcRscExceptionBase {
public:
    explicit LcRscOpenFileFailure(std::string_view path);

private:
    void anchor() const override;
};

/// The system failed to read from the open file; so it does from a directory. What had been read by then was
/// applied. Code 3, "Failed to read file ...".
class FL_I18N_EXPORT LcRscFileReadFailure : public LcRscExceptionBase {
public:
    explicit LcRscFileReadFailure(std::string_view path);

private:
    void anchor() const override;
};

/// There was no memory for an XML parser. Nothing was applied. Code 4, "Failed to create XML parser.".
class FL_I18N_EXPORT LcRscParserCreationFailure : public LcRscExceptionBase {
public:
    LcRscParserCreationFailure();

private:
    void anchor() const override;
};

/// The document isn't well-formed, goes beyond a limit, or breaks a rule of its format. The elements before
/// the bad one were applied. Code 5:
///
///     XML Parse error detected with 35 at column, 17, on line, 2 in resource file.
///
/// `error` is expat's `XML_Error`: 35, "aborted", where the format is at fault or one of this library's
/// limits is passed; the place is then behind the tag or the declaration. Lines count from 1, columns from 0,
/// in characters.
class FL_I18N_EXPORT LcRscInvalidXmlDoc : public LcRscExceptionBase {
public:
    LcRscInvalidXmlDoc(int error, std::uint64_t column, std::uint64_t line);

private:
    void anchor() const override;
};

} // namespace fl::i18n::lcmgmt
