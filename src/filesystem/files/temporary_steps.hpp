/// The steps of making a temporary file, with what they depend on handed in.
#pragma once

#include <fl/i18n/ustring.hpp>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace fl::filesystem::detail {

/// The first of `candidates` that is a directory to read and write in. Throws what is wrong with the last
/// one, `TempEnvNotSpecified` if there is none.
ustring first_usable_directory(std::vector<ustring> const& candidates);

/// 16 random hexadecimal digits in four groups. Throws where the system has no random numbers.
std::string grouped_digits();

/// A random UUID in its form of 36 characters. Throws likewise.
std::string random_uuid();

/// The random part of a name, in ASCII: what the first of the sources gives that doesn't throw; empty if both
/// do.
std::string random_token(std::string (*source)() = grouped_digits,
                         std::string (*second_source)() = random_uuid);

/// A source of tokens: each call gives another one, in ASCII, or an empty one if there are none.
using token_source = std::function<std::string()>;

/// Names and opens a file as `tmpfile` does. `dir` is not empty.
std::FILE* open_temporary(ustring& out_name, ustring const& dir, ustring const& prefix, ustring const& suffix,
                          token_source const& tokens);

} // namespace fl::filesystem::detail
