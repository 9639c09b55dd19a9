#include "filesystem/directory/treatment.hpp"
#include "support/temp_tree.hpp"

#include <gtest/gtest.h>

#include <dirent.h>

using namespace fl::filesystem::detail;

TEST(TreatmentTest, AsksTheDiskWhereTheDirectoryDoesNotTell) {
    fl::testing::temp_tree const tree;
    tree.file("directory/file");
    create_symlink(tree.root(), tree.root() / "link");
    using enum treatment;
    std::tuple<std::string, treatment, treatment> const rows[] = {
        {"directory", show_and_visit, show_and_visit},
        {"directory/file", show, show},
        {"link", show, show},
        {"gone", drop, drop},
        {std::string(256, 'n'), show, show_and_visit}};
    std::unique_ptr<DIR, int (*)(DIR*)> const top(::opendir(tree.root().c_str()), ::closedir);
    for (auto const& [name, unknown, directory] : rows) {
        EXPECT_EQ(treatment_of(DT_UNKNOWN, ::dirfd(top.get()), name.c_str()), unknown) << name;
        EXPECT_EQ(treatment_of(DT_DIR, ::dirfd(top.get()), name.c_str()), directory) << name;
        EXPECT_EQ(treatment_of(DT_LNK, ::dirfd(top.get()), name.c_str()), show) << name;
    }
}
