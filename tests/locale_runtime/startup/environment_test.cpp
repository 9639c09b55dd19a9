#include <fl/i18n/environment.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

using fl::ustring;
namespace i18n = fl::i18n;
using namespace std::string_literals;

/// What a call answers, and the `errno` that it leaves.
using outcome = std::pair<int, int>;

static outcome of(auto const& call) {
    errno = ERANGE;
    int const answer = call();
    return {answer, errno};
}

static void by_either_name(ustring const& name, auto const& check) {
    check(name);
    check(i18n::ustring_to_utf8(name));
}

static constexpr outcome yes{1, ERANGE}, no{0, ERANGE}, success{0, ERANGE}, refused{-1, EINVAL};

TEST(Environment, SetsValuesAsUtf8ByEitherKindOfName) {
    struct {
        ustring name, value;
        int overwrite, allow_empty;
        outcome expected;
        std::string left;
    } const rows[] = {
        {u"FL_X", u"Gr\u00fc\u00df \U0001F6A2", 1, 0, success, "Gr\xc3\xbc\xc3\x9f \xf0\x9f\x9a\xa2"},
        {u"FL_X", u"new", 0, 0, success, "old"},
        {u"FL_X", u"", 1, 1, success, ""},
        {u"FL_X", u"", 1, 0, refused, "old"},
        {u"FL_X", u"a\xd800z", 1, 0, success, "a\xef\xbf\xbdz"},
        {u"FL_X", u"a\0z"s, 1, 1, refused, "old"},
        {u"FL_X\0Y"s, u"new", 1, 1, refused, "old"},
        {u"FL_X=Y", u"new", 1, 1, refused, "old"},
        {u"", u"new", 1, 1, refused, "old"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(&row - rows);
        by_either_name(row.name, [&](auto const& name) {
            ::setenv("FL_X", "old", 1);
            EXPECT_EQ(of([&] { return i18n::setenv(name, row.value, row.overwrite, row.allow_empty != 0); }),
                      row.expected);
            EXPECT_EQ(std::getenv("FL_X"), row.left);
        });
    }
}

TEST(Environment, ReadsAndRemovesByEitherKindOfName) {
    struct {
        ustring name;
        char const* value; // of FL_\u00dc; null: not set
        outcome is_set;
        ustring text;
        outcome removed;
    } const rows[] = {
        {u"FL_\u00dc", "Gr\xc3\xbc\xc3\x9f", yes, u"Gr\u00fc\u00df", success},
        {u"FL_\u00dc", "a\xff\xc3", yes, u"a\ufffd\ufffd", success},
        {u"FL_\u00dc", "", yes, u"", success},
        {u"FL_\u00dc", nullptr, no, u"", success},
        {u"FL_\u00dc\0"s, "old", {0, EINVAL}, u"", refused},
        {u"", "old", {0, EINVAL}, u"", refused},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(&row - rows);
        by_either_name(row.name, [&](auto const& name) {
            row.value ? ::setenv("FL_\xc3\x9c", row.value, 1) : ::unsetenv("FL_\xc3\x9c");
            EXPECT_EQ(of([&] { return i18n::isenv(name); }), row.is_set);
            EXPECT_EQ(of([&] { return i18n::getenv(name) == row.text; }), outcome(1, row.is_set.second));
            EXPECT_EQ(of([&] { return i18n::unsetenv(name); }), row.removed);
            EXPECT_EQ(std::getenv("FL_\xc3\x9c") != nullptr, row.removed == refused);
        });
    }
}
