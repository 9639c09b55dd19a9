#include "filesystem/files/random_token.hpp"

#include <boost/filesystem/operations.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <exception>

namespace fl::filesystem::detail {

std::string grouped_digits() {
    return boost::filesystem::unique_path("%%%%-%%%%-%%%%-%%%%").string();
}

std::string random_uuid() {
    return boost::uuids::to_string(boost::uuids::random_generator()());
}

std::string random_token(std::string (*source)(), std::string (*second_source)()) {
    for (auto const draw : {source, second_source}) {
        try {
            return draw();
        } catch (std::exception const&) {
            // No entropy, or no way to it: a sandbox may close one and not the other.
        }
    }
    return {};
}

} // namespace fl::filesystem::detail
