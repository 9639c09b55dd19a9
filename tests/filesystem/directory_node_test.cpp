#include "filesystem/directory/directory_node.hpp"

#include <gtest/gtest.h>

using fl::filesystem::detail::directory_node;

TEST(DirectoryNodeTest, PathsAndATreeDeeperThanTheStack) {
    for (std::string const root : {"/", "/a/b"}) {
        auto const top = std::make_shared<directory_node>(root);
        std::string const start = root == "/" ? "" : root;
        EXPECT_EQ(top->path() + " " + top->path_of("c"), root + " " + start + "/c");
        auto const child = std::make_shared<directory_node>(top, "c"),
                   leaf = std::make_shared<directory_node>(child, "d");
        EXPECT_EQ(leaf->path() + " " + leaf->path_of("e"), start + "/c/d " + start + "/c/d/e");
        EXPECT_EQ(child->path_below(top.get()) + " " + leaf->path_below(top.get()), "c c/d");
    }
    auto deepest = std::make_shared<directory_node>("/");
    for (int i = 0; i < 1'000'000; ++i)
        deepest = std::make_shared<directory_node>(std::move(deepest), "x");
    EXPECT_EQ(deepest->path().size(), 2'000'000);
}
