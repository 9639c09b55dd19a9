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

/// A source of tokens: each call gives another one, in ASCII, or an empty one if there are none.
using token_source = std::function<std::string()>;

/// Names and opens a file as `tmpfile` does. `dir` is not empty.
std::FILE* open_temporary(ustring& out_name, ustring const& dir, ustring const& prefix, ustring const& suffix,
                          token_source const& tokens);

} // namespace fl::filesystem::detail
