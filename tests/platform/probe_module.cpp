// A module with a copy of the platform layer in it, to be loaded by a test.
#include "platform/platform.hpp"

extern "C" __attribute__((visibility("default"))) char const* path_of_probe() {
    static std::string const path = fl::platform::native().module_path(&path);
    return path.c_str();
}
