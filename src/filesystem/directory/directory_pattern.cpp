#include "filesystem/directory/wildcard.hpp"

#include <fl/filesystem/directory_pattern.hpp>
#include <fl/filesystem/path.hpp>

#include <utility>

namespace fl::filesystem {

pattern_string_context::pattern_string_context(ustring filename, ustring expression)
    : filename_(std::move(filename)),
      expression_(std::move(expression)) {}

pattern_string_context::pattern_string_context(pattern_string_context const&) = default;
pattern_string_context& pattern_string_context::operator=(pattern_string_context const&) = default;
pattern_string_context::~pattern_string_context() = default;

pattern_string_context kestrune_pattern_string_generator::operator()(ustring const& filename) const {
    return pattern_string_context(filename, detail::generate_pattern_from_filename(filename, *this));
}

ustring detail::generate_pattern_from_filename(ustring const& filename,
                                               kestrune_pattern_string_generator const&) {
    if (filename.empty() || filename == upath_constant::CURRENT_DIRECTORY ||
        filename == upath_constant::PARENT_DIRECTORY)
        return ustring(all_expression);
    ustring result = u"^";
    for (std::size_t i = 0; i < filename.size(); ++i) {
        char16_t const unit = filename[i];
        if (unit == u'*') {
            if (i + 1 == filename.size() || filename[i + 1] != u'*')
                result += star_expression;
            continue;
        }
        append_literal(result, unit);
    }
    return result += u'$';
}

} // namespace fl::filesystem
