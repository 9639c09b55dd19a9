#include "support/ascii.hpp"
#include "support/platform_double.hpp"
#include "support/temp_tree.hpp"
#include "support/threads.hpp"

#include <fl/filesystem/install_path.hpp>

#include <gtest/gtest.h>

#include <cerrno>

#define DIR FL_I18N_PLATFORM_DIR // to be joined with literals
using namespace fl::filesystem;

/// Stands in for the system's services during a test.
struct InstallPathTest : testing::Test, fl::testing::volume_double {
    std::string module_path(void const*) const override {
        ++calls;
        return path == "throw" ? throw path : path;
    }

    std::string path;
    mutable std::atomic<int> calls = 0;
};

TEST_F(InstallPathTest, WalksUpToTheDirectoryPair) {
    std::pair<char const*, char const*> const rows[] = {{"/opt/x/bin/" DIR "/lib.so", "/opt/x"},
                                                        {"//\xFFx//bin/" DIR "//lib.so", "/\xFFx"},
                                                        {"/bin/" DIR "/lib.so", "/"},
                                                        {"/x/bin/" DIR "/y/z/lib.so", "/x"},
                                                        {"/x/bin/" DIR "/" DIR "/lib.so", "/x"},
                                                        {"/x/" DIR "/lib.so", ""},
                                                        {"/" DIR "/lib.so", ""},
                                                        {"x/bin/other/lib.so", ""},
                                                        {"", ""}};
    for (auto const& [module, root] : rows) {
        path = module;
        EXPECT_EQ(get_base_path(nullptr), root) << module;
    }
    // A link tells the tree of the real file.
    fl::testing::temp_tree const tree;
    path = (tree.root() / "link.so").string();
    std::filesystem::create_symlink(tree.file("real/bin/" DIR "/lib.so"), path);
    EXPECT_EQ(get_base_path(nullptr), tree.root() / "real");
    // Case counts by the volume.
    path = "/x/BIN/" + fl::support::ascii_upper_copy(DIR) + "/lib.so";
    for (flags = 0; flags < 32; ++flags)
        EXPECT_EQ(get_base_path(nullptr), flags % 2 == 1 ? "/x" : "") << flags;
    error = EACCES;
    EXPECT_EQ(get_base_path(nullptr), "/x");
}

TEST_F(InstallPathTest, IsTextComputedOnceAfterAFailedTry) {
    path = "throw";
    EXPECT_THROW(get_install_path(), std::string);
    path = "/o\xC3\xA9\xFF/bin/" DIR "/lib.so";
    fl::testing::run_in_threads(8, [](int) { EXPECT_EQ(get_install_path(), u"/o\u00E9\uFFFD"); });
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(fl::i18n::detail::get_module_path_from_address(this), u"/o\u00E9\uFFFD/bin/" DIR "/lib.so");
    EXPECT_EQ(fl::i18n::detail::get_module_path_from_address(nullptr), u"");
}
