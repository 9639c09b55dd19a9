#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <variant>

namespace fl::i18n {

namespace {

/// The converter for one of the terminal's encodings; it substitutes what it cannot convert.
template <class Codecvt>
std::unique_ptr<Codecvt> create_codecvt(QnLcOptDataCtx::LcOptDataType type) {
    return std::make_unique<Codecvt>(std::get<std::string>(QnLocale::global().getLcOptData(type)), true);
}

} // namespace

std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_to_ustring() {
    return create_codecvt<codecvt_string_to_ustring>(QnLcOptDataCtx::terminal_encoding);
}

std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal() {
    return create_codecvt<codecvt_ustring_to_string>(QnLcOptDataCtx::terminal_encoding);
}

std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_input_to_ustring() {
    return create_codecvt<codecvt_string_to_ustring>(QnLcOptDataCtx::terminal_input_encoding);
}

std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal_output() {
    return create_codecvt<codecvt_ustring_to_string>(QnLcOptDataCtx::terminal_output_encoding);
}

} // namespace fl::i18n
