#include "directory_bench.hpp"

#include "comparison.hpp"

#include <fl/filesystem.hpp>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace bench {
namespace {

using namespace fl::filesystem;
namespace stdfs = std::filesystem;
using state = benchmark::State;

/// A tree on the disk: three levels of directories, with files such as people have.
class tree {
public:
    tree() {
        std::string name = (stdfs::temp_directory_path() / "fl_i18n_bench_XXXXXX").string();
        root_ = stdfs::canonical(mkdtemp(name.data()) ? name : ""); // no directory: throws
        for (int i = 0; i < 12; ++i)
            for (int j = 0; j < 12; ++j)
                fill(root_ / ("project " + std::to_string(i)) / ("part " + std::to_string(j)), 40);
        fill(root_ / "flat", 5000);
    }
    ~tree() {
        std::error_code ignored;
        stdfs::remove_all(root_, ignored);
    }
    tree(tree&&) = delete;

    stdfs::path const& root() const { return root_; }
    fl::ustring flat() const { return (root_ / "flat").u16string(); }

private:
    static void fill(stdfs::path const& directory, int count) {
        static constexpr std::array<char const*, 4> names = {"minutes.txt", "figures 2021.xls",
                                                             "\xC3\x9C"
                                                             "bersicht.txt",
                                                             "readme"};
        stdfs::create_directories(directory);
        for (int i = 0; i < count; ++i)
            std::ofstream(directory / (std::to_string(i) + " " + names[static_cast<std::size_t>(i) % 4]));
    }

    stdfs::path root_;
};

/// Made at the first benchmark that needs it.
tree const& shared_tree() {
    static tree const made;
    return made;
}

void walk(state& s) {
    fl::ustring const root = shared_tree().root().u16string();
    for (auto _ : s)
        for (upath_directory_entry const& entry : upath_recursive_directory_iterator(root))
            benchmark::DoNotOptimize(entry.filename().data());
}

void walk_by_standard_library(state& s) {
    for (auto _ : s)
        for (stdfs::directory_entry const& entry :
             stdfs::recursive_directory_iterator(shared_tree().root())) {
            std::u16string const name = entry.path().filename().u16string();
            benchmark::DoNotOptimize(name.data());
        }
}

void iterate(state& s) {
    fl::ustring const directory = shared_tree().flat();
    for (auto _ : s)
        for (upath_directory_entry const& entry : upath_directory_iterator(directory))
            benchmark::DoNotOptimize(entry.filename().data());
}

auto iterate_by(fl::ustring const& wildcard) {
    return [pattern = kestrune_pattern_string_generator()(wildcard)](state& s) {
        fl::ustring const directory = shared_tree().flat();
        for (auto _ : s)
            for (upath_directory_entry const& entry : upath_directory_iterator(directory, pattern))
                benchmark::DoNotOptimize(entry.filename().data());
    };
}

} // namespace

void register_directory_benchmarks() {
    compare("directory/walk", 1.0, walk, "std::filesystem", walk_by_standard_library);
    compare("directory/wildcard *.txt", 1.1, iterate_by(u"*.txt"), "no_wildcard", iterate);
    compare("directory/wildcard *2*e*", 1.1, iterate_by(u"*2*e*"), "no_wildcard", iterate);
}

} // namespace bench
