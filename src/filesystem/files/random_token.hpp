/// The random part of the names of temporary files, in ASCII.
#pragma once

#include <string>

namespace fl::filesystem::detail {

/// 16 random hexadecimal digits in four groups. Throws where the system has no random numbers.
std::string grouped_digits();

/// A random UUID in its form of 36 characters. Throws likewise.
std::string random_uuid();

/// What the first of the sources gives that doesn't throw; empty if both do.
std::string random_token(std::string (*source)() = grouped_digits,
                         std::string (*second_source)() = random_uuid);

} // namespace fl::filesystem::detail
