#include <fl/i18n/java_vm_context.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/startup.hpp>

namespace fl::i18n {

namespace {

struct language_and_region {
    std::string language;
    std::string region;

    language_and_region(QnLocale const& locale, QnLocale::LcCategory category)
        : language(locale.language(category, QnLocale::language_with_script)),
          region(locale.territory(category)) {}
    bool operator==(language_and_region const&) const = default;
};

} // namespace

javavm_init_context get_javavm_init_context() {
    QnLocale const& global = QnLocale::global();
    language_and_region const user(QnLocale::system(), QnLocale::messages);
    language_and_region const format(global, QnLocale::ctype);
    bool const localized = get_l10n_resource_status();
    javavm_init_context result;
    result.language = user.language;
    result.region = user.region;
    if (!localized) {
        result.display_language = global.language(QnLocale::messages, QnLocale::language_with_script);
        result.display_region = global.territory(QnLocale::messages);
    }
    if (!localized || user != format) {
        result.format_language = format.language;
        result.format_region = format.region;
    }
    result.encoding = std::get<std::string>(global.getLcOptData(QnLcOptDataCtx::jvm_encoding));
    return result;
}

} // namespace fl::i18n
