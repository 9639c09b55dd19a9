/// A directory of its own for one test, removed at the end.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace fl::testing {

class temp_tree {
public:
    temp_tree() {
        std::string name = (std::filesystem::temp_directory_path() / "fl_i18n_test_XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("cannot make a directory for the test");
        // Canonical, as the library reports paths: the system's temporary directory may itself be a link.
        root_ = std::filesystem::canonical(name);
    }
    ~temp_tree() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    temp_tree(temp_tree const&) = delete;
    temp_tree& operator=(temp_tree const&) = delete;

    std::filesystem::path const& root() const { return root_; }
    std::filesystem::path path(std::string_view name) const { return root_ / name; }

    /// A name below the root as the library takes it: any UTF-16 text, also such as no file can have.
    ustring text(std::u16string_view name = u".") const { return root_.u16string() + u"/" + ustring(name); }

    std::filesystem::path directory(std::string_view name) const {
        std::filesystem::create_directories(path(name));
        return path(name);
    }

    /// Writes a file, with the directories on its way.
    std::filesystem::path file(std::string_view name, std::string_view content = "") const {
        std::filesystem::create_directories(path(name).parent_path());
        std::ofstream(path(name), std::ios::binary) << content;
        return path(name);
    }

private:
    std::filesystem::path root_;
};

} // namespace fl::testing
