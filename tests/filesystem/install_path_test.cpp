#include "support/temp_tree.hpp"
#include "filesystem/volume.hpp"
#include "platform/platform.hpp"
#include "support/ascii.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/install_path.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <stdexcept>
#include <thread>
#include <vector>

#define DIR FL_I18N_PLATFORM_DIR // to be joined with literals
using namespace fl::filesystem;

namespace {

struct FakeServices : fl::platform::services {
    int volume_flags(std::string const&, std::uint32_t& result) const override {
        return result = flags, error;
    }
    std::string module_path(void const*) const override {
        ++calls;
        return path == "throw" ? throw std::runtime_error(path) : path;
    }
    int set_file_times(std::string const&, std::timespec const&, std::timespec const&) const override {
        return EIO;
    }

    std::string path;
    std::uint32_t flags = 0;
    int error = 0;
    mutable std::atomic<int> calls = 0;
};

struct InstallPathTest : testing::Test {
    FakeServices fake;
    fl::platform::scoped_services const in_force{fake};
};

} // namespace

TEST_F(InstallPathTest, WalksUpToTheDirectoryPair) {
    char const* const rows[][2] = {{"/opt/x/bin/" DIR "/lib.so", "/opt/x"},
                                   {"//\xFFx//bin/" DIR "//lib.so", "/\xFFx"},
                                   {"/bin/" DIR "/lib.so", "/"},
                                   {"/x/bin/" DIR "/y/z/lib.so", "/x"},
                                   {"/x/bin/" DIR "/" DIR "/lib.so", "/x"},
                                   {"/x/" DIR "/lib.so", ""},
                                   {"/" DIR "/lib.so", ""},
                                   {"x/bin/other/lib.so", ""},
                                   {"", ""}};
    for (auto const& [module, root] : rows) {
        SCOPED_TRACE(module);
        fake.path = module;
        EXPECT_EQ(get_base_path(nullptr), root);
    }
}

TEST_F(InstallPathTest, CaseCountsByTheVolume) {
    std::string const upper = "/x/BIN/" + fl::support::ascii_upper_copy(DIR);
    fake.path = upper + "/lib.so";
    EXPECT_EQ(get_base_path(nullptr), "");
    fake.flags = 2 | 16; // about normalisation
    EXPECT_EQ(get_base_path(nullptr), "");
    fake.flags = 1;
    EXPECT_EQ(get_base_path(nullptr), "/x");
    fake.flags = 0;
    fake.error = EACCES;
    EXPECT_EQ(get_base_path(nullptr), "/x");
    EXPECT_THROW(detail::read_volume_flags("/x"), AccessDenied);
}

TEST_F(InstallPathTest, ALinkTellsTheTreeOfTheRealFile) {
    fl::testing::temp_tree const tree;
    fake.path = (tree.root() / "link.so").string();
    std::filesystem::create_symlink(tree.file("real/bin/" DIR "/lib.so"), fake.path);
    EXPECT_EQ(get_base_path(nullptr), (tree.root() / "real").string());
}

TEST_F(InstallPathTest, IsComputedOnceAfterAFailedTry) {
    fake.path = "throw";
    EXPECT_THROW(get_install_path(), std::runtime_error);
    fake.path = "/o\xC3\xA9\xFF/bin/" DIR "/lib.so";
    std::vector<std::jthread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([] { EXPECT_EQ(get_install_path(), u"/o\u00E9\uFFFD"); });
    threads.clear();
    EXPECT_EQ(fake.calls, 2);
}

TEST_F(InstallPathTest, ModulePathIsText) {
    fake.path = "/caf\xC3\xA9\xFF";
    EXPECT_EQ(fl::i18n::detail::get_module_path_from_address(&fake), u"/caf\u00E9\uFFFD");
    EXPECT_EQ(fl::i18n::detail::get_module_path_from_address(nullptr), u"");
}
