#include "filesystem/directory/directory_node.hpp"
#include "filesystem/directory/open_directory.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/recursive_directory_iterator.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <iterator>
#include <set>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

using namespace fl::filesystem;
using namespace fl::i18n;
namespace stdfs = std::filesystem;
using names = std::multiset<std::string>;
using walk = upath_recursive_directory_iterator;
static names words(std::string const& text) {
    std::istringstream input(text);
    return {std::istream_iterator<std::string>(input), {}};
}
static_assert(std::input_iterator<walk> && std::sentinel_for<walk, walk>);

struct RecursiveDirectoryIteratorTest : testing::Test {
    /// The number of entries that a walk shows; their names and order are checked.
    std::size_t checked_walk() const {
        std::multiset<ustring> shown, expected;
        std::ptrdiff_t level = 0;
        for (upath_directory_entry const& entry : walk(root)) {
            std::ptrdiff_t const own = std::ranges::count(*shown.insert(entry.full_pathname()), u'/');
            EXPECT_LE(std::exchange(level, own), own) << "breadth first";
        }
        for (auto const& entry : stdfs::recursive_directory_iterator(tree.root()))
            expected.insert(utf8_to_ustring(entry.path().native()));
        EXPECT_EQ(shown, expected);
        return shown.size();
    }

    /// What a walk shows from `i` on, with "!" for each exception.
    static names rest(walk i) {
        names found;
        for (bool shows = true; i != walk();) {
            if (shows)
                found.insert(ustring_to_utf8(i->filename()));
            try {
                ++i, shows = true;
            } catch (FsysExceptionBase const&) {
                found.insert("!"), shows = false;
                EXPECT_THROW(*i, InvalidArgument);
            }
        }
        EXPECT_THROW(++i, InvalidArgument);
        return found;
    }

    /// How many descriptors of directories in `top` this process has, also of removed ones.
    static std::ptrdiff_t descriptors(stdfs::path const& top) {
        std::error_code ignored;
        return std::ranges::count_if(stdfs::directory_iterator("/proc/self/fd"), [&](auto const& open) {
            return stdfs::read_symlink(open, ignored).native().starts_with(top.native());
        });
    }

    fl::testing::temp_tree tree;
    ustring root = tree.root().u16string();
};

TEST_F(RecursiveDirectoryIteratorTest, ShowsEveryEntryOnceLevelByLevel) {
    EXPECT_EQ(walk(root), walk());
    for (std::string const a : {"a", "b\xFF", "b\xFE", "\xEF\xBF\xBD", "b\xEF\xBF\xBD", "r\r\n"})
        for (std::string const b : {"x", "\xFF", "...", "\xC3\xA9"})
            tree.file(a + "/" + b + "/" + a + b);
    stdfs::create_directories(tree.root() / "a/empty/empty");
    for (auto const& [link, target] :
         {std::pair{"a/up", ".."}, {"out", "/"}, {"dangling", "no"}, {"self", "self"}})
        stdfs::create_symlink(target, tree.root() / link);
    ::mkfifo((tree.root() / "a/fifo").c_str(), 0600);
    EXPECT_EQ(checked_walk(), 61);
    std::ofstream(tree.root() / "0");
    for (int i = 1; i < 20'000; ++i)
        i % 10 == 0 ? void(stdfs::create_directory(tree.root() / std::to_string(i)))
                    : stdfs::create_hard_link(tree.root() / "0", tree.root() / std::to_string(i));
    EXPECT_EQ(checked_walk(), 20'061);
    EXPECT_EQ(std::distance(walk(upath(root + u"/a/up")), walk()), 20'061) << "the root may be a link";
}

TEST_F(RecursiveDirectoryIteratorTest, PathsLongerThanTheSystemTakes) {
    static constexpr int depth = 1500; // the path is four times as long as a system call takes
    stdfs::current_path(tree.root());
    std::string deepest;
    for (int i = 0; i < depth; ++i, deepest += "directory\xFF/") {
        stdfs::create_symlink("..", "link"), stdfs::create_directory("directory\xFF");
        stdfs::current_path("directory\xFF");
    }
    stdfs::current_path("/");
    std::size_t entries = 0;
    for (upath_directory_entry const& entry : walk(root)) {
        EXPECT_EQ(entry.pathname().size(), root.size() + entries / 2 * 11);
        EXPECT_NE(entry.symlink_status().kind(), file_status::file_not_found);
        ++entries;
    }
    EXPECT_EQ(entries, 2 * depth);
    detail::file_descriptor const top(::open(tree.root().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (std::string const last : {"", "missing"})
        EXPECT_EQ(detail::open_below(top.get(), deepest + last).is_open(), last.empty());
    // The standard library keeps a descriptor for each level while it removes a tree.
    EXPECT_EQ(std::system(("rm -rf '" + tree.root().string() + "'").c_str()), 0);
}

TEST_F(RecursiveDirectoryIteratorTest, ATreeDeeperThanTheStack) {
    auto node = std::make_shared<detail::directory_node>("/");
    EXPECT_EQ(node->path() + node->path_of("c"), "//c");
    for (int i = 0; i < 1'000'000; ++i)
        node = std::make_shared<detail::directory_node>(std::move(node), "x");
    EXPECT_EQ(node->path().size(), 2'000'000);
}

TEST_F(RecursiveDirectoryIteratorTest, WhatChangesDuringTheWalk) {
    bool const reads_all = ::geteuid() == 0;
    struct {
        int steps; // before the change
        void (*change)(stdfs::path const&);
        std::string content;
    } const rows[] = {
        {2, [](auto const& top) { remove_all(top / "2"); }, "! one three"},
        {2, [](auto const& top) { remove_all(top); }, "! ! !"},
        {0, [](auto const& top) { remove_all(top); }, "!"},
        {2, [](auto const& top) { remove_all(top / "3"), create_symlink("/", top / "3"); }, "! one two"},
        {2, [](auto const& top) { remove_all(top / "1"), std::ofstream(top / "1"); }, "! three two"},
        {2, [](auto const& top) { rename(top, top.string() + "_"), create_directories(top / "1/a"); },
         "one three two"},
        {2, [](auto const& top) { permissions(top / "2", stdfs::perms()); },
         reads_all ? "one three two" : "! one three"}};
    for (auto const& [steps, change, content] : rows) {
        fl::testing::temp_tree const own;
        for (auto const name : {"top/1/one", "top/2/two", "top/3/three"})
            own.file(name);
        walk i(own.text(u"top"));
        std::advance(i, steps);
        std::string const last = ustring_to_utf8(i->filename());
        change(own.root() / "top");
        EXPECT_EQ(rest(i), words(last + " " + content));
        EXPECT_EQ(descriptors(own.root()), 0) << "at the end, with " << content;
        std::error_code ignored;
        permissions(own.root() / "top/2", stdfs::perms::owner_all, ignored);
    }
}

TEST_F(RecursiveDirectoryIteratorTest, LinksInTheMiddleOfAPathAreNotFollowed) {
    tree.file("outside/2/secret");
    for (int n = 0; n < 40; ++n)
        tree.file("root/" + std::to_string(n) + "/2/inside");
    walk i(root + u"/root");
    std::advance(i, 79);
    for (int n = 0; n < 40; ++n) {
        stdfs::path const name = tree.root() / "root" / std::to_string(n);
        stdfs::rename(name, tree.root() / ("former" + std::to_string(n)));
        stdfs::create_symlink(tree.root() / "outside", name);
    }
    EXPECT_LE(descriptors(tree.root()), 20);
    names const found = rest(i); // some directories are held, and the others lost
    EXPECT_TRUE(found.count("inside") > 1 && found.count("!") > 1 && found.count("secret") == 0);
    EXPECT_EQ(found.count("inside") + found.count("!"), 40);
}

TEST_F(RecursiveDirectoryIteratorTest, BeginsWhereADirectoryIteratorStands) {
    for (auto const name : {"1/one", "2/two", "a"})
        tree.file(name);
    upath_directory_iterator start(upath(root), initialization_mode::none, true), end;
    walk i(start), same(start), copy = i;
    EXPECT_TRUE(i == copy && i == same && i != walk(root) && i != walk());
    EXPECT_EQ(rest(i), words("1 2 a one two"));
    EXPECT_TRUE(copy == walk() && start == end);
    start = upath_directory_iterator(root, kestrune_pattern_string_generator()(u"2"));
    EXPECT_EQ(rest(walk(start)), words("2 two")) << "the pattern is for the first level";
    EXPECT_EQ(walk(end), walk());
    std::filesystem::create_directory(tree.root() / "empty");
    walk const nothing(upath_directory_iterator(upath(root + u"/empty"), initialization_mode::none, true));
    EXPECT_TRUE(nothing == walk() && descriptors(tree.root() / "empty") == 0) << "only dot entries";
    start = upath_directory_iterator(root, pattern_string_context(u"*", u"\\d"));
    walk const from_first(start);
    EXPECT_NE(from_first, walk(++start)) << "one iterator, but another directory to visit";
}
