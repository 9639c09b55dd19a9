#pragma once

namespace fl::i18n::date_time {

inline constexpr char utc_stamp_format[] = "%Y-%m-%dT%H:%M:%SZ";

} // namespace fl::i18n::date_time
