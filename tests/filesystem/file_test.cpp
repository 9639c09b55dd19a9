#include "support/temp_tree.hpp"

#include <fl/filesystem/boost_path.hpp>
#include <fl/filesystem/codecvt.hpp>
#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file.hpp>
#include <fl/i18n/cvt_exception.hpp>

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <new>
#include <utility>

using namespace fl::filesystem;
using namespace std::string_literals;
using fl::ustring;

namespace {

using Script = std::function<std::string(ustring const&)>;
using Length = unsigned long;

/// A converter that answers with what the test wants.
struct ScriptedConverter : fl::i18n::converter<char, char16_t> {
    explicit ScriptedConverter(Script script) : answer(std::move(script)) {}
    Length do_get_destination_size(char16_t const*, Length) const override { return 0; }
    std::string do_convert(char16_t const* src, Length size) const override { return answer({src, size}); }
    Length do_convert(char*, Length, char16_t const*, Length) const override { return 0; }
    Script answer;
};

/// The `errno` of opening, or 0 if the stream has "content". Leaves another value behind for the next
/// opening.
int outcome(std::FILE* file) {
    if (file == nullptr)
        return std::exchange(errno, ERANGE);
    char text[16] = {};
    bool const expected = std::fgets(text, sizeof text, file) != nullptr && text == "content"s;
    std::fclose(file);
    return expected ? 0 : -1;
}

} // namespace

TEST(File, RefusesArgumentsInOrder) {
    struct {
        ustring name;
        std::string mode;
        int by_text, by_path; // `errno` of the two forms
    } const rows[] = {
        {u"", "r", EINVAL, EINVAL},         {u"\0x"s, "r", EINVAL, EINVAL},
        {u"x\0"s, "r", EINVAL, EINVAL},     {u"x", "", EINVAL, EINVAL},
        {u"x", "r\0"s, EINVAL, EINVAL},     {u"no-such/", "", EINVAL, EINVAL},
        {u"no-such/", "r", EISDIR, ENOENT}, {u"/", "w", EISDIR, EISDIR},
        {u"no-such", "r", ENOENT, ENOENT},  {ustring(5000, u'n'), "r", ENAMETOOLONG, ENAMETOOLONG}};
    codecvt_ustring_to_filesystem const strict(false);
    for (auto const& [name, mode, by_text, by_path] : rows) {
        SCOPED_TRACE(std::filesystem::path(name).string() + " " + mode);
        EXPECT_EQ(outcome(fopen(name, mode)), by_text);
        EXPECT_EQ(outcome(fopen(name, mode, strict)), by_text);
        EXPECT_EQ(outcome(fopen(upath(name), mode)), by_path);
        EXPECT_EQ(outcome(fopen(upath(name), mode, strict)), by_path);
        EXPECT_EQ(outcome(freopen(upath(name), mode, nullptr)), EINVAL);
    }
    EXPECT_EQ(outcome(freopen(u"no-such/", "r", stdin)), EISDIR);
    EXPECT_NE(::fileno(stdin), -1) << "refused here: the stream stays open";
}

TEST(File, OpensNamesOfAnyLengthThroughEveryForm) {
    fl::testing::temp_tree const tree;
    tree.file("caf\xC3\xA9", "content");
    codecvt_ustring_to_filesystem const strict(false);
    for (std::size_t const length : {100u, 1023u, 1024u, 1025u, 2048u, 3000u}) {
        SCOPED_TRACE(length);
        ustring name = tree.text(length % 2 != tree.text().size() % 2 ? u"." : u"/.");
        while (name.size() + 5 < length)
            name += u"/.";
        name += u"/caf\u00E9";
        EXPECT_EQ(name.size(), length);
        EXPECT_EQ(outcome(fopen(name, "r")), 0);
        EXPECT_EQ(outcome(fopen(upath(name), "r", strict)), 0);
        EXPECT_EQ(outcome(freopen(upath(name), "r", std::tmpfile())), 0);
        EXPECT_EQ(outcome(freopen(name, "r", std::tmpfile(), strict)), 0);
    }
    std::string word;
    EXPECT_TRUE(basic_ifstream<char>(detail::make_native_access_form_i18n(tree.text(u"caf\u00E9"))) >> word);
    EXPECT_EQ(word, "content");
}

TEST(File, AnUnpairedSurrogateBecomesByte26UnlessTheConverterIsStrict) {
    fl::testing::temp_tree const tree;
    tree.file("a\x1A", "content");
    codecvt_ustring_to_filesystem const strict(false);
    EXPECT_EQ(outcome(fopen(tree.text(u"a\xD800"), "r")), 0);
    EXPECT_EQ(outcome(fopen(tree.text(u"a\xD800"), "r", strict)), ENOENT);
}

TEST(File, TheCallersConverterGetsTheNameAndMayFail) {
    ustring seen;
    ScriptedConverter const spy([&](ustring const& name) { return seen = name, ""s; });
    EXPECT_EQ(outcome(fopen(u"a//b", "r", spy)), ENOENT);
    EXPECT_EQ(seen, u"a/b");
    EXPECT_EQ(outcome(fopen(upath(u"a//b/"), "r", spy)), ENOENT);
    EXPECT_EQ(seen, u"a//b/");
    ScriptedConverter const wide([](ustring const&) { return "/\0d\0e\0v"s; });
    EXPECT_EQ(outcome(fopen(u"/dev", "r", wide)), EINVAL);
    auto const outcome_of = [](auto const& exception) {
        ScriptedConverter const failing([&](ustring const&) -> std::string { throw exception; });
        return outcome(fopen(u"x", "r", failing));
    };
    EXPECT_EQ(outcome_of(std::bad_alloc()), ENOMEM);
    EXPECT_EQ(outcome_of(fl::i18n::CvtSizeTooLarge()), ENAMETOOLONG);
    EXPECT_EQ(outcome_of(fl::i18n::CvtConversionFailure()), ENOENT);
    EXPECT_THROW(outcome_of(std::logic_error("x")), std::logic_error);
}

TEST(File, BoostPathsAreReadAsUtf8) {
    codecvt_filesystem_to_ustring const strict(false);
    EXPECT_EQ(to_ustring("/caf\xC3\xA9//\xFF"), u"/caf\u00E9//\uFFFD");
    EXPECT_EQ(to_generic_ustring("/caf\xC3\xA9//\xFF"), u"/caf\u00E9//\uFFFD");
    EXPECT_EQ(to_generic_ustring("/caf\xC3\xA9", strict), u"/caf\u00E9");
    EXPECT_THROW(to_generic_ustring("\xFF/", strict), CvtInvalidCharacter);
}
