#include "support/rows.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

using namespace fl::filesystem;
using namespace std::string_literals;
using fl::ustring;
using narrow = detail::path_traits<char, char>;

// The oracle is std::filesystem, asked about the clean name: it keeps doubled and trailing separators.
TEST(Path, RandomNamesAgreeWithTheStandardLibrary) {
    std::minstd_rand random(20240229);
    for (int round = 0; round < 20000; ++round) {
        std::string name(random() % 12, '\0');
        for (char& c : name)
            c = "//..ab\\"[random() % 7];
        SCOPED_TRACE("name '" + name + "'");
        ustring const text(name.begin(), name.end());
        ustring const form = detail::make_native_form(text);
        EXPECT_TRUE(form.find(u"//") == form.npos && (form.size() < 2 || form.back() != u'/'));
        std::filesystem::path const clean(narrow::make_native_form(name));
        EXPECT_EQ(clean.u16string(), form);
        EXPECT_EQ(detail::make_native_access_form_i18n(text), clean.string());
        EXPECT_EQ((clean / ".").lexically_normal(), (std::filesystem::path(name) / ".").lexically_normal());
        EXPECT_EQ(detail::extract_filename(text), clean.filename().u16string());
        EXPECT_EQ(detail::extract_stem(text), clean.stem().u16string());
        EXPECT_EQ(detail::extract_extension(text), clean.extension().u16string());
        EXPECT_EQ(detail::is_absolute(text), clean.is_absolute());
        std::string const parent = clean.has_filename() ? clean.parent_path().string() : "";
        EXPECT_EQ(narrow::make_native_form(narrow::remove_filename(name)), parent);
        std::string const resolved = clean.lexically_normal().string();
        EXPECT_EQ(detail::make_native_access_form_with_cleanup(text), narrow::make_native_form(resolved));
    }
    EXPECT_THROW(detail::make_native_access_form(u"a\0b"s), InvalidArgument);
    EXPECT_THROW(detail::make_native_access_form(u"a\xD800"), CvtInvalidCharacter);
    EXPECT_THROW(detail::from_filesystem("a\xC0\xAF"), CvtInvalidCharacter);
}

TEST(Path, ConcatenatesWithOneSeparator) {
    for (auto const& [first, second, expected] :
         fl::testing::rows<3>("a b a/b  a/ b a/b  a /b a/b  a// //b a/b  ~ b b  ~ /b /b  a ~ a  a/ ~ a/  / b "
                              "/b  / /b /b  a / a  ~ ~ ~")) {
        EXPECT_EQ(narrow::concatenate_pathname(first, second), expected) << first << " and " << second;
        EXPECT_EQ(native_path(first) / second, native_path(expected)) << first << " and " << second;
    }
}
