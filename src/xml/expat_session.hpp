/// What every reader of an XML file by expat shares: events that may throw, limits on hostile documents, and
/// the reading of a stream in pieces.
///
/// A reader derives its state from `expat_session`, installs its call-backs, and has each of them forward:
///
///     void XMLCALL on_end(void* user_data, XML_Char const* name) noexcept {
///         auto& mine = expat_session::of<my_session>(user_data);
///         mine.forward([&] { return mine.handler.end(name); });
///     }
#pragma once

#include <expat.h>

#include <cstddef>
#include <exception>
#include <iosfwd>
#include <memory>

namespace fl::xml {

struct parser_deleter {
    void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};
using parser_ptr = std::unique_ptr<XML_ParserStruct, parser_deleter>;

/// One parse of one document.
class expat_session {
public:
    /// Becomes the parser's user data and limits what a document type may declare: 100 entities and
    /// attributes in all, and no attribute with a default value, which each tag of its element would repeat
    /// without any limit of expat's. The parser outlives the session; a null one makes every document
    /// malformed.
    explicit expat_session(XML_Parser parser) noexcept;
    expat_session(expat_session const&) = delete;
    expat_session& operator=(expat_session const&) = delete;

    /// The session behind the user data of a call-back.
    template <class Session>
    static Session& of(void* user_data) noexcept {
        return static_cast<Session&>(*static_cast<expat_session*>(user_data));
    }

    /// Runs `event` for a call-back. If it returns false or throws, the parse ends and no further event runs;
    /// the exception waits until the parser, which knows none, has returned.
    template <class Event>
    void forward(Event const& event) noexcept {
        if (stopped_)
            return; // the parser may report an event or two after it was stopped
        try {
            if (event())
                return;
        } catch (...) {
            failure_ = std::current_exception();
        }
        stop();
    }

    enum class result { complete, malformed, unreadable };

    /// Parses what the stream holds, in time proportionate to its size. `malformed` also where an event ended
    /// the parse; the exception of an event is thrown.
    result parse(std::istream& stream);

    /// For the parser's call-backs alone.
    void count_declaration() noexcept;
    void refuse_declaration() noexcept;

protected:
    ~expat_session() = default;

private:
    bool feed(char const* data, int size, bool last);
    std::size_t unfinished_token(std::size_t fed) const noexcept;
    void stop() noexcept;

    XML_Parser parser_;
    int declarations_ = 0; // so far
    bool stopped_ = false;
    std::exception_ptr failure_;
};

} // namespace fl::xml
