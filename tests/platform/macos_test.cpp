// The services of macOS on doubles of its calls, so that they are compiled and seen on any system.
#include "platform/platform.hpp"
#include "platform/posix.hpp"
#include "support/temp_tree.hpp"

#include <gtest/gtest.h>

#include <CoreFoundation/CoreFoundation.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/attr.h>
#include <sys/mount.h>
#include <unistd.h>

static fl::platform::services const& macos = fl::platform::native();

constexpr char const* locale_key = "AppleLocale, current application";
constexpr char const* user_key = "AppleLanguages, any application, current user, any host";
constexpr char const* application_key = "AppleLanguages, current application";

/// Every object has lost its last owner at the end.
struct MacosPreferences : testing::Test {
    MacosPreferences() { fake_cf = {}; }
    ~MacosPreferences() override {
        for (fake_object const& object : fake_cf.objects)
            EXPECT_EQ(object.owners, 0);
    }
};

TEST(Macos, AVolumeTellsItsFlags) {
    constexpr std::int32_t no_answer = -1, sensitive = 0x100, insensitive = 0x80;
    struct {
        char const* file_system;
        std::int32_t format;
        std::uint32_t flags;
        int error;
    } const rows[] = {{"apfs", sensitive, 16, 0}, {"apfs", insensitive, 17, 0},
                      {"apfs", no_answer, 16, 0}, {"hfs", sensitive, 2, 0},
                      {"hfs", insensitive, 3, 0}, {"msdos", insensitive, 1, 0},
                      {"nfs", no_answer, 0, 0},   {nullptr, no_answer, 99, ENOENT}};
    for (auto const& row : rows) {
        std::uint32_t flags = 99;
        fake_file_system = row.file_system;
        fake_volume_format = row.format;
        SCOPED_TRACE(row.file_system ? row.file_system : "no file");
        EXPECT_EQ(macos.volume_flags("/x", flags), row.error);
        EXPECT_EQ(flags, row.flags) << row.format;
    }
}

TEST(Macos, AModuleIsKnownByTheLoadersName) {
    static int const in_this_program = 0;
    int const on_the_stack = 0;
    EXPECT_TRUE(std::filesystem::equivalent(macos.module_path(&in_this_program), "/proc/self/exe"));
    EXPECT_EQ(macos.module_path(&on_the_stack) + macos.module_path(nullptr), "");
}

TEST(Macos, ADirectoryIsNotOpenedByALink) {
    fl::testing::temp_tree const tree;
    tree.file("a/file");
    create_symlink(tree.root(), tree.root() / "link");
    for (std::string const name : {"a", "link", "a/file", "no"}) {
        int const opened = fl::platform::open_directory_without_links(AT_FDCWD, (tree.root() / name).c_str());
        EXPECT_EQ(opened >= 0, name == "a") << name;
        ::close(opened);
    }
}

TEST_F(MacosPreferences, TheLocaleIsCanonicalLatin1OfAnyLength) {
    for (std::u16string const& name : {std::u16string(u"d\u00E9"), std::u16string(127, u'x'),
                                       std::u16string(128, u'x'), std::u16string(1000, u'x')}) {
        fake_cf.preferences = {{locale_key, fake_cf.string(name + u"-AT@currency=EUR")}};
        EXPECT_EQ(macos.user_locale(), std::string(name.begin(), name.end()) + "_AT@currency=EUR");
    }
}

TEST_F(MacosPreferences, WhatCannotBeReadIsEmpty) {
    using services = fl::platform::services;
    using objects = std::vector<fake_object const*>; // the first one can be
    auto* const text = fake_cf.string(u"de");
    auto* const list = fake_cf.array({text, fake_cf.string(u"fr")});
    auto* const no_ascii = fake_cf.array({fake_cf.string(u"d\u00E9"), text});
    objects const lists{list, nullptr, text, fake_cf.array({}), fake_cf.array({list}), no_ascii};
    std::tuple<char const*, std::string (services::*)() const, objects> const rows[] = {
        {locale_key, &services::user_locale, {text, nullptr, list, fake_cf.string(u"\u65E5")}},
        {user_key, &services::user_language, lists},
        {application_key, &services::application_language, lists}};
    for (auto const& [key, ask, values] : rows) {
        for (auto const* const value : values) {
            fake_cf.preferences = {{key, value}};
            EXPECT_EQ((macos.*ask)(), value == values[0] ? "de" : "") << key;
        }
        fake_cf.preferences = {{key, values[0]}};
        for (char const* const call : {"preferences", "CFStringGetCString"}) {
            fake_cf.failing = call;
            EXPECT_EQ((macos.*ask)(), "") << key << call;
        }
        fake_cf.failing.clear();
    }
    fake_cf.preferences = {{locale_key, text}};
    fake_cf.failing = "CFLocaleCreateCanonicalLocaleIdentifierFromString";
    EXPECT_EQ(macos.user_locale(), "");
}

TEST_F(MacosPreferences, ALanguageListIsStoredWholeOrNotAtAll) {
    macos.store_application_languages({"en", "d\xC3\xA9"});
    for (char const* const call : {"CFArrayCreateMutable", "CFStringCreateWithBytes", "none"}) {
        EXPECT_EQ(fake_cf.stored, std::vector<std::string>()) << "before " << call;
        fake_cf.failing = call;
        macos.store_application_languages({"de-AT", "en"});
    }
    EXPECT_EQ(fake_cf.stored, (std::vector<std::string>{application_key, "de-AT", "en",
                                                        "synchronized, current application"}));
}
