#include <fl/i18n/time_zone.hpp>

#include <utility>

namespace fl::i18n::time_zone {

timezone_exception_base::timezone_exception_base(std::string error_id, int code, std::string message)
    : error_id_(std::move(error_id)),
      code_(code),
      message_(std::move(message)) {}

timezone_exception_base::~timezone_exception_base() = default;

char const* timezone_exception_base::what() const noexcept {
    return error_id_.c_str();
}

invalid_time_data::invalid_time_data()
    : timezone_exception_base("fl::i18n::timezone::invalid_time_data", 1, "Invalid time data.") {}

invalid_time_data::~invalid_time_data() = default;

invalid_timezone_id::invalid_timezone_id()
    : timezone_exception_base("fl::i18n::timezone::invalid_timezone_id", 2, "Invalid timezone id.") {}

invalid_timezone_id::~invalid_timezone_id() = default;

} // namespace fl::i18n::time_zone
