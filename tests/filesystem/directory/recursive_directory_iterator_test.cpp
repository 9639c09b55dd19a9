#include "filesystem/directory/open_directory.hpp"
#include "filesystem/directory/tree_walk.hpp"
#include "platform/posix.hpp"
#include "support/temp_tree.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/recursive_directory_iterator.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
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
    /// What a walk shows from `i` on, with "!" for each exception.
    static names rest(walk i) {
        names found;
        for (bool shows = true; i != walk();) {
            if (shows)
                found.insert(ustring_to_utf8(i->filename()));
            try {
                ++i;
                shows = true;
            } catch (FsysExceptionBase const&) {
                shows = false;
                found.insert("!");
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
    detail::file_descriptor top{::open(tree.root().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
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
    stdfs::path const linked = tree.file("wide/0");
    for (int i = 1; i < 20'000; ++i)
        if (stdfs::path const entry = tree.root() / "wide" / std::to_string(i); i % 10 == 0)
            stdfs::create_directory(entry);
        else
            stdfs::create_hard_link(linked, entry);
    std::multiset<ustring> shown, expected;
    std::ptrdiff_t level = 0;
    for (upath_directory_entry const& entry : walk(root)) {
        std::ptrdiff_t const own = std::ranges::count(*shown.insert(entry.full_pathname()), u'/');
        EXPECT_LE(std::exchange(level, own), own) << "breadth first";
    }
    for (auto const& entry : stdfs::recursive_directory_iterator(tree.root()))
        expected.insert(utf8_to_ustring(entry.path().native()));
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(std::distance(walk(upath(root + u"/a/up")), walk()), 20'062) << "the root may be a link";
}

TEST_F(RecursiveDirectoryIteratorTest, PathsLongerThanTheSystemTakes) {
    static constexpr int depth = 1500; // the path is four times as long as a system call takes
    stdfs::current_path(tree.root());
    std::string deepest;
    for (int i = 0; i < depth; ++i, deepest += "directory\xFF/") {
        stdfs::create_symlink("..", "link");
        stdfs::create_directory("directory\xFF");
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
    for (std::string const last : {"", "missing"})
        EXPECT_EQ(detail::open_below(top.get(), deepest + last).is_open(), last.empty());
    // The standard library keeps a descriptor for each level while it removes a tree.
    EXPECT_EQ(std::system(("rm -rf '" + tree.root().string() + "'").c_str()), 0);
}

TEST_F(RecursiveDirectoryIteratorTest, ATreeDeeperThanTheStack) {
    auto node = std::make_shared<detail::directory_node>("/");
    for (int i = 0; i < 1'000'000; ++i)
        node = std::make_shared<detail::directory_node>(std::move(node), "x");
    EXPECT_EQ(node->path().size(), 2'000'000);
}

TEST_F(RecursiveDirectoryIteratorTest, WhatChangesDuringTheWalk) {
    std::string const all = "one three two";
    struct {
        int steps_before;
        std::string change;      // a command, in the root of the walk
        std::string shown_after; // besides the entry where the walk stands
    } const rows[] = {{2, "rm -r 2", "! one three"},
                      {2, "rm -r ../top", "! ! !"},
                      {0, "rm -r ../top", "!"},
                      {2, "rm -r 3; ln -s / 3", "! one two"},
                      {2, "rm -r 1; touch 1", "! three two"},
                      {2, "mv ../top ../gone; mkdir -p ../top/1/a", all},
                      {2, "chmod 0 2", ::geteuid() == 0 ? all : "! one three"}};
    for (auto const& [steps, change, content] : rows) {
        SCOPED_TRACE(change);
        fl::testing::temp_tree const own;
        for (auto const name : {"top/1/one", "top/2/two", "top/3/three"})
            own.file(name);
        walk i(own.text(u"top"));
        std::advance(i, steps);
        std::string const last = ustring_to_utf8(i->filename());
        EXPECT_EQ(std::system(("cd '" + own.root().string() + "/top' && " + change).c_str()), 0);
        EXPECT_EQ(rest(i), words(last + " " + content));
        EXPECT_EQ(descriptors(own.root()), 0) << "at the end";
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
    EXPECT_LE(descriptors(tree.root()), 21);
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
    stdfs::create_directory(tree.root() / "empty");
    walk const nothing(upath_directory_iterator(upath(root + u"/empty"), initialization_mode::none, true));
    EXPECT_TRUE(nothing == walk() && descriptors(tree.root() / "empty") == 0) << "only dot entries";
}

/// The system's own way and the one by steps open the same directories, and refuse the others alike.
TEST_F(RecursiveDirectoryIteratorTest, DirectoriesAreNeverOpenedByLinks) {
    tree.file("a/b\xFF/c/file");
    stdfs::create_symlink("a", tree.root() / "link");
    stdfs::create_symlink("b\xFF", tree.root() / "a/link");
    std::string const too_long(256, 'n');
    std::pair<int, std::vector<std::string>> const rows[] = {
        {0, {"a", "a/b\xFF", "a/b\xFF/c"}},
        {ENOENT, {"a/b\xFF/c/no", "a/no/c"}},
        {ENOTDIR, {"a/b\xFF/c/file", "link", "link/b\xFF", "a/link/c"}},
        {ENAMETOOLONG, {"a/" + too_long, too_long + "/a", "a/b\xFF/" + too_long + "/c"}}};
    for (auto const& [error, paths] : rows)
        for (std::string const& path : paths) {
            SCOPED_TRACE(path);
            for (auto const open :
                 {&fl::platform::open_directory_without_links, &fl::platform::open_directory_by_steps}) {
                detail::file_descriptor const opened(open(top.get(), path.c_str()));
                EXPECT_EQ(opened.is_open() ? 0 : errno == ELOOP ? ENOTDIR : errno, error);
            }
            EXPECT_EQ(to_handle(detail::open_below(top.get(), path)) ? 0 : errno, error);
        }
}

TEST_F(RecursiveDirectoryIteratorTest, AsksTheDiskWhereTheDirectoryDoesNotTell) {
    tree.file("directory/file");
    stdfs::create_symlink(tree.root(), tree.root() / "link");
    using detail::treatment;
    struct {
        std::string name;
        treatment of_unknown_type, of_directory;
    } const rows[] = {{"directory", treatment::show_and_visit, treatment::show_and_visit},
                      {"directory/file", treatment::show, treatment::show},
                      {"link", treatment::show, treatment::show},
                      {"gone", treatment::drop, treatment::drop},
                      {std::string(256, 'n'), treatment::show, treatment::show_and_visit}};
    for (auto const& [name, of_unknown_type, of_directory] : rows) {
        EXPECT_EQ(detail::treatment_of(DT_UNKNOWN, top.get(), name.c_str()), of_unknown_type) << name;
        EXPECT_EQ(detail::treatment_of(DT_DIR, top.get(), name.c_str()), of_directory) << name;
    }
}
