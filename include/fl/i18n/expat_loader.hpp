/// @file
/// Event-driven reading of an XML file: a handler that receives events, and a loader that drives it.
///
/// Derive from `ExpatEventHandler`, give an object to an `ExpatLoader`, and call `load_file`. A handler stops
/// the parse by returning false, and then sees no further event.
///
///     boost::shared_ptr<my_handler> const handler(new my_handler);
///     bool const complete = fl::i18n::ExpatLoader(path, handler).load_file();
///
/// All names, values and text that a handler sees are UTF-8, whatever the encoding of the file. The parser's
/// own limits against exponential entity expansion are in force, and a longer chain of entities would be
/// followed by recursion. So a document type may declare 100 entities and attributes in all, and no attribute
/// with a default value, which every tag would repeat; `load_file` ends at what goes beyond. Only regular
/// files are read.
///
/// A loader and its handler serve one file on one thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>

#include <boost/noncopyable.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>

struct XML_ParserStruct;

namespace fl::i18n {

/// Receives the events of one document.
class FL_I18N_EXPORT ExpatEventHandler : private boost::noncopyable {
public:
    /// `encoding` is the name given to the parser; it overrides what the document declares about itself (but
    /// not a byte order mark of UTF-16). The parser knows "UTF-8", "UTF-16", "ISO-8859-1" and "US-ASCII";
    /// with another name every load fails.
    explicit ExpatEventHandler(std::string const& encoding);
    virtual ~ExpatEventHandler();

    /// Passes a start tag on, unless the handler has stopped the parse before. The result is false if it has,
    /// or does so now. `name` and the array, which alternates names and values and ends in a null pointer,
    /// are NUL-terminated and valid during the call.
    bool elementStart(char const* name, char const** attributes);

    /// The same for a piece of text, of `length` bytes without a terminator. How text is cut into pieces is
    /// up to the parser, but a character is never cut.
    bool elementData(char const* data, int length);

    /// The same for an end tag.
    bool elementEnd(char const* name);

    /// The encoding name given to the constructor.
    [[nodiscard]] std::string const& encoding() const noexcept { return encoding_; }

protected:
    /// What a kind of handler does with each event; false stops the parse. Exceptions reach the caller of
    /// `ExpatLoader::load_file`.
    virtual bool doElementStart(char const* name, char const** attributes) = 0;
    virtual bool doElementData(char const* data, int length) = 0;
    virtual bool doElementEnd(char const* name) = 0;

private:
    bool continue_ = true;
    std::string encoding_;
};

/// Reads one file and passes its events to a handler.
class FL_I18N_EXPORT ExpatLoader : private boost::noncopyable {
public:
    class XML_Parser_Guard;
    struct XML_Parser_User_Data;

    /// Prepares to read `path`; the file is not touched yet. The handler lives at least as long as the
    /// loader.
    ExpatLoader(filesystem::upath const& path, boost::shared_ptr<ExpatEventHandler> handler);
    ~ExpatLoader();

    /// Reads the file, in pieces of 1024 bytes, to its end or to the first failure; the pieces grow where a
    /// single tag or comment is longer, so that the time stays in proportion to the size of the file. True if
    /// it is a complete and well-formed document and the handler stopped nothing; false otherwise, also for a
    /// file that cannot be opened or read. The reason is not kept. Exceptions of the handler pass through, as
    /// do those of `filesystem::detail::make_native_access_form_i18n` for the path. To be called once: a
    /// document that has ended is not parsed again.
    bool load_file();

private:
    filesystem::upath path_;
    std::unique_ptr<XML_Parser_Guard> parser_;
    boost::shared_ptr<ExpatEventHandler> handler_;
    std::unique_ptr<XML_Parser_User_Data> userData_;
};

/// Owns one expat parser.
class FL_I18N_EXPORT ExpatLoader::XML_Parser_Guard : private boost::noncopyable {
public:
    explicit XML_Parser_Guard(std::string const& encoding);
    ~XML_Parser_Guard();

    /// The parser; null if there was no memory for one. Valid as long as the guard.
    [[nodiscard]] XML_ParserStruct* get() const noexcept { return parser_; }

private:
    XML_ParserStruct* parser_;
};

} // namespace fl::i18n
