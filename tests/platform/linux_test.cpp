#include "platform/platform.hpp"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <filesystem>

static int in_main_program = 0;

TEST(Linux, TheMainProgramIsKnownByItsFile) {
    std::string const program = std::filesystem::read_symlink("/proc/self/exe").string();
    EXPECT_EQ(fl::platform::native().module_path(&in_main_program), program);
    EXPECT_EQ(fl::platform::native().module_path(nullptr), "");
}

TEST(Linux, AModuleLoadedByARelativeNameIsFoundAfterAChangeOfDirectory) {
    std::filesystem::path const module = std::filesystem::canonical(FL_I18N_PROBE_MODULE);
    std::filesystem::current_path(module.parent_path());
    void* const handle = ::dlopen(("./" + module.filename().string()).c_str(), RTLD_NOW);
    ASSERT_NE(handle, nullptr) << ::dlerror();
    std::filesystem::current_path("/");
    auto const path_of_probe = reinterpret_cast<char const* (*)()>(::dlsym(handle, "path_of_probe"));
    ASSERT_NE(path_of_probe, nullptr);
    EXPECT_EQ(path_of_probe(), module.string());
    EXPECT_EQ(fl::platform::native().module_path(reinterpret_cast<void const*>(&::dlopen)).front(), '/');
}
