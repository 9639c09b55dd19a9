/// A directory of its own for one test, removed at the end.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace fl::testing {

class temp_tree {
public:
    temp_tree() {
        std::string name = (std::filesystem::temp_directory_path() / "fl_i18n_test_XXXXXX").string();
        // Canonical, as the library reports paths: the system's temporary directory may itself be a link. An
        // empty name, of a directory that could not be made, throws.
        root_ = std::filesystem::canonical(mkdtemp(name.data()) ? name : "");
    }
    ~temp_tree() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    temp_tree(temp_tree&&) = delete; // nor is it copied

    std::filesystem::path const& root() const { return root_; }

    /// A name below the root as the library takes it: any UTF-16 text, also such as no file can have.
    ustring text(std::u16string_view name = u".") const { return root_.u16string() + u"/" + ustring(name); }

    /// Writes a file, with the directories on its way.
    std::filesystem::path file(std::string_view name, std::string_view content = "") const {
        std::filesystem::path const path = root_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

private:
    std::filesystem::path root_;
};

} // namespace fl::testing
