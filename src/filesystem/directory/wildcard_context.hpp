/// The source of the entries whose names match a pattern.
#pragma once

#include "filesystem/directory/directory_entry_context.hpp"
#include "filesystem/directory/wildcard.hpp"

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/i18n/simple_pattern_match.hpp>

#include <optional>

namespace fl::filesystem {

/// Filters by an expression, by the rules of the volume.
class directory_entry_with_wc_support_context final : public directory_entry_context {
public:
    /// Throws `InvalidArgument` if ICU refuses the expression, unless `mode` accepts that.
    directory_entry_with_wc_support_context(ustring const& directory, ustring const& expression,
                                            initialization_mode mode);

    bool step() override;

private:
    void open_matcher(ustring const& expression, std::optional<detail::wildcard> const& parsed,
                      initialization_mode mode);
    bool matches() const;

    std::optional<detail::wildcard> wildcard_; // decides where it is there
    fl::i18n::simple_pattern_match matcher_;
};

} // namespace fl::filesystem
