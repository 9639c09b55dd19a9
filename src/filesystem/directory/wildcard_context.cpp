#include "filesystem/directory/wildcard_context.hpp"

#include "support/raise.hpp"
#include "text/matching/match_limit.hpp"

#include <fl/filesystem/exceptions.hpp>

namespace fl::filesystem {
namespace {

using namespace fl::i18n;

/// For one name, in ICU's steps: some milliseconds. Ordinary matches take less than one step.
constexpr std::int32_t time_limit = 20;

bool accepts_bad_pattern(initialization_mode mode) noexcept {
    auto const bit = static_cast<std::uint32_t>(initialization_mode::accept_bad_pattern);
    return (static_cast<std::uint32_t>(mode) & bit) != 0;
}

} // namespace

directory_entry_with_wc_support_context::directory_entry_with_wc_support_context(ustring const& directory,
                                                                                 ustring const& expression,
                                                                                 initialization_mode mode)
    : directory_entry_context(directory) {
    if (opening_error() != 0)
        return; // tells more than a bad expression
    std::optional<detail::wildcard> parsed = detail::wildcard::parse(expression);
    if (parsed && mask() == character_handling_mode_context::default_mode)
        wildcard_ = std::move(parsed);
    else
        open_matcher(expression, parsed, mode);
}

void directory_entry_with_wc_support_context::open_matcher(ustring const& expression,
                                                           std::optional<detail::wildcard> const& parsed,
                                                           initialization_mode mode) {
    ustring const pattern = parsed ? parsed->bounded_expression() : expression;
    if (matcher_.open(pattern, mask()) == regex_success)
        i18n::detail::limit_match_time(matcher_, time_limit);
    else if (!accepts_bad_pattern(mode))
        support::raise(InvalidArgument("Pattern matching object can not be created"));
}

bool directory_entry_with_wc_support_context::matches() const {
    if (wildcard_)
        return wildcard_->matches(name());
    regex_excp_id status = regex_success;
    return matcher_.match(name(), status);
}

bool directory_entry_with_wc_support_context::step() {
    while (read_raw()) {
        convert_name();
        if (matches())
            return true;
    }
    return false;
}

} // namespace fl::filesystem
