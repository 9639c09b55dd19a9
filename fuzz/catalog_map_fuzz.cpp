// Any bytes as an index of catalogs: a completion never throws, and puts nothing but catalogs of the component
// that was asked for, or parts of their names, in the place of what was typed.

#include "fuzz.hpp"

#include <fl/i18n/message_catalog.hpp>
#include <fl/i18n/message_id_completion.hpp>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

namespace stdfs = std::filesystem;

/// Makes a resource location with one component, and returns the name of the component's map.
stdfs::path map_file() {
    stdfs::path const tree = stdfs::temp_directory_path() / ("fl_i18n_fuzz_map_" + std::to_string(getpid()));
    stdfs::path const maps = tree / "derived/share/resources/fuzz";
    stdfs::create_directories(tree / "resources/fuzz");
    stdfs::create_directories(maps);
    fl::i18n::MessageCatalog::MessageCatalogInit(tree.u16string());
    return maps / "catalog_map.xml";
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static stdfs::path const map = map_file();
    std::ofstream(map, std::ios::binary)
        .write(reinterpret_cast<char const*>(data), static_cast<std::streamsize>(size));
    for (fl::ustring const typed : {u"", u"fuzz:", u"fuzz:a", u"fuzz:input:", u"FUZZ:input:k"}) {
        auto const [completions, position] = fl::i18n::getMessageIdCompletions(typed);
        require(position >= 0 && static_cast<std::size_t>(position) <= typed.size());
        for (fl::ustring const& completion : completions)
            require(!completion.empty() && (!typed.empty() || completion == u"fuzz:"));
    }
    return 0;
}
