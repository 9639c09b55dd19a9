#include <fl/i18n/date_time.hpp>

#include <utility>

namespace fl::i18n::date_time {

date_time_exception_base::date_time_exception_base(std::string error_id, int code)
    : error_id_(std::move(error_id)),
      code_(code) {}

date_time_exception_base::~date_time_exception_base() = default;

char const* date_time_exception_base::what() const noexcept {
    return error_id_.c_str();
}

invalid_data_error::invalid_data_error()
    : date_time_exception_base("fl:i18n:date_time:invalid_data_error", 1) {}

invalid_data_error::~invalid_data_error() = default;

} // namespace fl::i18n::date_time
