#include <fl/i18n/environment.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

using fl::ustring;
namespace i18n = fl::i18n;
using namespace std::string_literals;

static void by_either_name(ustring const& name, auto const& check) {
    check(name);
    check(i18n::ustring_to_utf8(name));
}

TEST(Environment, SetsValuesAsUtf8ByEitherKindOfName) {
    struct {
        ustring name, value;
        bool overwrite, allow_empty;
        int error; // in errno
        std::string left;
    } const rows[] = {
        {u"FL_X", u"Gr\u00fc\u00df \U0001F6A2", true, false, 0, "Gr\xc3\xbc\xc3\x9f \xf0\x9f\x9a\xa2"},
        {u"FL_X", u"new", false, false, 0, "old"},
        {u"FL_X", u"", true, true, 0, ""},
        {u"FL_X", u"", true, false, EINVAL, "old"},
        {u"FL_X", u"a\xd800z", true, false, 0, "a\xef\xbf\xbdz"},
        {u"FL_X", u"a\0z"s, true, true, EINVAL, "old"},
        {u"FL_X\0Y"s, u"new", true, true, EINVAL, "old"},
        {u"FL_X=Y", u"new", true, true, EINVAL, "old"},
        {u"", u"new", true, true, EINVAL, "old"}};
    for (auto const& row : rows) {
        SCOPED_TRACE(&row - rows);
        by_either_name(row.name, [&](auto const& name) {
            ::setenv("FL_X", "old", 1);
            errno = 0;
            EXPECT_EQ(i18n::setenv(name, row.value, row.overwrite, row.allow_empty), row.error ? -1 : 0);
            EXPECT_EQ(errno, row.error);
            EXPECT_EQ(std::getenv("FL_X"), row.left);
        });
    }
}

TEST(Environment, ReadsAndRemovesByEitherKindOfName) {
    struct {
        ustring name;
        char const* value; // of FL_\u00dc; null: not set
        ustring text;
        int error = 0;
    } const rows[] = {{u"FL_\u00dc", "Gr\xc3\xbc\xc3\x9f", u"Gr\u00fc\u00df"},
                      {u"FL_\u00dc", "a\xff\xc3", u"a\ufffd\ufffd"},
                      {u"FL_\u00dc", "", u""},
                      {u"FL_\u00dc", nullptr, u""},
                      {u"FL_\u00dc\0"s, "old", u"", EINVAL},
                      {u"", "old", u"", EINVAL}};
    for (auto const& row : rows) {
        SCOPED_TRACE(&row - rows);
        by_either_name(row.name, [&](auto const& name) {
            row.value ? ::setenv("FL_\xc3\x9c", row.value, 1) : ::unsetenv("FL_\xc3\x9c");
            errno = 0;
            EXPECT_EQ(i18n::isenv(name), row.value != nullptr && row.error == 0);
            EXPECT_EQ(std::exchange(errno, 0), row.error);
            EXPECT_EQ(i18n::getenv(name), row.text);
            EXPECT_EQ(std::exchange(errno, 0), row.error);
            EXPECT_EQ(i18n::unsetenv(name), row.error ? -1 : 0);
            EXPECT_EQ(errno, row.error);
            EXPECT_EQ(std::getenv("FL_\xc3\x9c") != nullptr, row.error != 0);
        });
    }
}
