#include <fl/i18n/regex_exceptions.hpp>

#include <utility>

namespace fl::i18n {

RegexExceptionBase::RegexExceptionBase(std::string message, regex_excp_id kind)
    : message_(std::move(message)),
      kind_(kind) {}

char const* RegexExceptionBase::what() const noexcept {
    return message_.c_str();
}

RegexInvalidArgument::RegexInvalidArgument()
    : RegexExceptionBase("fl:i18n:RegexInvalidArgument", regex_invalid_argument) {}

RegexInvalidObject::RegexInvalidObject()
    : RegexExceptionBase("fl:i18n:RegexInvalidObject", regex_invalid_object) {}

RegexFailedObjectCreation::RegexFailedObjectCreation()
    : RegexExceptionBase("fl:i18n:RegexFailedObjectCreation", regex_failed_object_creation) {}

RegexFailedMatchOperation::RegexFailedMatchOperation()
    : RegexExceptionBase("fl:i18n:RegexFailedMatchOperation", regex_failed_match_operation) {}

RegexFailedNormalization::RegexFailedNormalization()
    : RegexExceptionBase("fl:i18n:RegexFailedNormalization", regex_failed_normalization) {}

void RegexExceptionBase::anchor() const {}
void RegexInvalidArgument::anchor() const {}
void RegexInvalidObject::anchor() const {}
void RegexFailedObjectCreation::anchor() const {}
void RegexFailedMatchOperation::anchor() const {}
void RegexFailedNormalization::anchor() const {}

} // namespace fl::i18n
