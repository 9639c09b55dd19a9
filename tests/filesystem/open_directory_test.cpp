#include "filesystem/directory/open_directory.hpp"
#include "locale_data/rows.hpp"
#include "platform/directory.hpp"
#include "support/temp_tree.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>

using namespace fl::filesystem::detail;

/// The system's own way and the one by steps open the same directories, and refuse the others alike.
TEST(OpenDirectoryTest, NeverByLinks) {
    fl::testing::temp_tree const tree;
    tree.file("a/b\xFF/c/file");
    std::filesystem::create_symlink("a", tree.root() / "link");
    std::filesystem::create_symlink("b\xFF", tree.root() / "a/link");
    file_descriptor const root(::open(tree.root().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    auto const table =
        rows<2>("a ~  a/b\xFF ~  a/b\xFF/c ~  a/b\xFF/c/file D  a/b\xFF/c/no E  a/no/c E  link D  "
                "link/b\xFF D  a/link/c D  a/@ N  @/a N  a/b\xFF/@/c N");
    for (auto [path, error] : table) {
        SCOPED_TRACE(path);
        if (auto const place = path.find('@'); place != path.npos)
            path.replace(place, 1, std::string(256, 'n'));
        int const expected = error == "" ? 0 : error == "D" ? ENOTDIR : error == "E" ? ENOENT : ENAMETOOLONG;
        for (auto const open :
             {&fl::platform::open_directory_without_links, &fl::platform::open_directory_by_steps}) {
            file_descriptor const opened(open(root.get(), path.c_str()));
            EXPECT_EQ(opened.is_open() ? 0 : errno == ELOOP ? ENOTDIR : errno, expected);
        }
        EXPECT_EQ(to_handle(open_below(root.get(), path)) ? 0 : errno, expected);
    }
}
