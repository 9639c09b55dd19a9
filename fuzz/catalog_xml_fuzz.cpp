// Any bytes as a catalog file: the load succeeds or throws its one exception; what was loaded is found again
// by its keys, and a second load gives the same.

#include "fuzz.hpp"

#include <fl/i18n/message_catalog_impl.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

std::filesystem::path const input =
    std::filesystem::temp_directory_path() / ("fl_i18n_fuzz_" + std::to_string(getpid()) + ".xml");

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using namespace fl::i18n;
    std::ofstream(input, std::ios::binary)
        .write(reinterpret_cast<char const*>(data), static_cast<std::streamsize>(size));
    fl::filesystem::upath const path(input.u16string());
    try {
        MessageCatalogImpl const first("fuzz:input", path, "en");
        MessageCatalogImpl const second("fuzz:input", path, "en");
        std::vector<std::string> keys = first.get_all_keys();
        std::vector<std::string> same = second.get_all_keys();
        std::sort(keys.begin(), keys.end());
        std::sort(same.begin(), same.end());
        require(keys == same);
        for (std::string const& key : keys) {
            require(!key.empty());
            require(first.get_message_for_key(key) == second.get_message_for_key(key));
        }
    } catch (MessageCatalog::MessageCatalogLoadFailed const&) {
    }
    return 0;
}
