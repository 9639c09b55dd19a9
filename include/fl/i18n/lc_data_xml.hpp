/// @file
/// The XML form of corrections to a locale database, and its reader.
///
/// All content is in attributes; text between the tags is ignored.
///
///     <lcdata>
///       <locale name="de_DE" encoding="UTF-8" xpg_name="de_DE.UTF-8">
///         <alias name="german"/>
///         <region_alias name="Germany"/>
///         <l10n disable="true"/>
///       </locale>
///       <codeset>
///         <encoding name="IBM-943" jvm_encoding="Cp943" compat="Shift_JIS">
///           <encoding_alias name="943"/>
///         </encoding>
///       </codeset>
///     </lcdata>
///
///     fl::i18n::lcmgmt::locale_database database;
///     fl::i18n::lcmgmt::parseLcData(database, fl::filesystem::native_path("/opt/x/bin/lcdata.xml"));
///
/// "name" is required wherever it is known, and so is "disable" of `l10n`. Other attributes are optional, an
/// empty value is as good as none, and unknown attributes are ignored. `LcData` (<fl/i18n/lc_data.hpp>) says
/// what each element does; what it can't apply goes to the event log, and reading goes on. But an unknown
/// element, one in the wrong place or without its required attribute, and a declared encoding other than
/// UTF-8 end the reading.
///
/// There is no transaction: what was applied before a failure stays applied. A document type may declare 100
/// entities and attributes in all, and no attribute with a default value; expat's limits on the expansion of
/// entities are in force. The elements within locales and encodings repeat the name around them: each of them
/// adds the length of that name to a sum over the whole document, and a sum of more than 16 MiB ends the
/// reading, however sound the document is. So time and memory stay in proportion to the size of the file.
///
/// The objects here serve one document on one thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/lc_data.hpp>
#include <fl/i18n/lc_data_exceptions.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace fl::i18n::lcmgmt {

/// Receives the events of one document. Each operation returns 0 to go on; anything else ends the parse, and
/// no further event comes.
///
/// All texts are UTF-8, NUL-terminated but for the piece of text, and valid during the call.
class FL_I18N_EXPORT EventHandler {
public:
    virtual ~EventHandler();

    /// The XML declaration, if the document has one. `version` may be null, and so may `encoding`, if none is
    /// declared; `standalone` is 1 for "yes", 0 for "no" and -1 for nothing said.
    virtual int checkXMLDoc(char const* version, char const* encoding, int standalone) const = 0;
    /// A start tag, with alternating names and values that end in a null pointer.
    virtual int startEntry(char const* name, char const** attributes) = 0;
    /// A piece of text, of `length` bytes; the parser cuts it as it likes, but never within a character.
    virtual int entryData(char const* text, int length) = 0;
    virtual int endEntry(char const* name) = 0;
    /// The encoding in which the document is read; it overrides what the document declares about itself (but
    /// not a byte order mark of UTF-16).
    virtual std::string getEncoding() const = 0;
};

/// Checks which elements are known, and that each stands in the one that it belongs to.
///
/// The first element of a document has to be known, but may be any. An element directly in one of its own
/// name passes at its start; the mistake shows at the end of the outer one, which has no counterpart any
/// more.
class FL_I18N_EXPORT EventValidator {
public:
    /// What a malformed document gets for an answer.
    static constexpr int invalid = -2;

    /// Makes an element known, by a non-negative id, as a child of `parent`; an earlier description is
    /// replaced.
    void setEventDesc(std::string name, int id, std::string parent);

    /// The id of the element that begins, or `invalid`.
    int checkStartEvent(std::string_view name);
    /// 0, or `invalid` if this isn't the element that is open.
    int checkEndEvent(std::string_view name);

private:
    struct description {
        int id;
        std::string parent;
    };
    std::map<std::string, description, std::less<>> descriptions_;
    std::vector<std::string> open_; // outermost first
};

/// Applies the elements of an XML locale database to a database. Answers `EventValidator::invalid` to what
/// the format doesn't allow, and 0 otherwise.
class FL_I18N_EXPORT LcdbEventHandler : public EventHandler {
public:
    /// Writes to `database`, which outlives the handler.
    explicit LcdbEventHandler(locale_database& database);
    ~LcdbEventHandler() override;

    /// Accepts "UTF-8", in any ASCII case; a declaration that names no encoding is refused.
    int checkXMLDoc(char const* version, char const* encoding, int standalone) const override;
    int startEntry(char const* name, char const** attributes) override;
    int entryData(char const* text, int length) override;
    int endEntry(char const* name) override;
    std::string getEncoding() const override;

    /// Forgets the locale that aliases refer to. A `locale` element does so by itself.
    void clearDefualtLcCtx();

private:
    struct attribute;

    void setEventDesc();
    int eventFuncLocale(char const** attributes);
    int eventFuncAlias(char const** attributes);
    int eventFuncRegionAlias(char const** attributes);
    int eventFuncL10n(char const** attributes);
    int eventFuncEncoding(char const** attributes);
    int eventFuncEncodingAlias(char const** attributes);
    int nested(char const** attributes, char const* required, std::string const& enclosing,
               void (LcData::*add)(std::string_view, std::string_view));

    LcData data_;
    std::string encoding_ = "UTF-8";
    EventValidator validator_;
    std::string locale_name_;
    std::string locale_encoding_;
    std::string locale_xpg_name_;
    std::string encoding_name_;
    std::string disable_user_locale_; // read, and of no effect so far
    std::size_t repeated_bytes_ = 0;
};

/// Reads the file and passes its events to the handler.
///
/// Throws `LcRscOpenFileFailure`, `LcRscFileReadFailure`, `LcRscParserCreationFailure` and, for a document
/// that isn't well-formed or that the handler ended, `LcRscInvalidXmlDoc`. Exceptions of the handler pass
/// through.
FL_I18N_EXPORT void parseXmlDocument(EventHandler& handler, filesystem::native_path const& path);

/// Applies the XML locale database in that file to `database`: `parseXmlDocument` with an `LcdbEventHandler`.
///
/// A database that others read already must not be changed: build another one, apply the file to it, and let
/// it take the first one's place.
FL_I18N_EXPORT void parseLcData(locale_database& database, filesystem::native_path const& path);

} // namespace fl::i18n::lcmgmt
