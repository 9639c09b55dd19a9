#include "locale_runtime/context/discovery_record.hpp"
#include "locale_runtime/context/global_locale_slot.hpp"
#include "support/ascii.hpp"
#include "support/once_value.hpp"
#include "support/raise.hpp"

#include <fl/i18n/locale_context.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <unicode/locid.h>
#include <unicode/ucnv.h>

#include <utility>

namespace fl::i18n::lcmgmt {

namespace {

constexpr char const* built_in_locale = "en_US_POSIX";
constexpr char const* built_in_encoding = "UTF-8";
constexpr char const* init_title = "QnLocaleCtx::initQnLcCtx";

constinit support::once_value<std::unique_ptr<QnLocaleCtx>> process_context;

/// A locale is missing only if memory ran out while the context was set up.
template <class T>
T& present(T* locale) {
    if (!locale)
        support::raise(QnLcDataNotFound());
    return *locale;
}

template <class Map, class Key>
auto const& find_or_raise(Map const& map, Key const& key) {
    auto const found = map.find(key);
    if (found == map.end())
        support::raise(QnLcDataNotFound());
    return found->second;
}

} // namespace

QnLocaleCtx* get_qnlocale_context() {
    return process_context.get(&QnLocaleCtx::make).get();
}

QnLocale const* get_locale_object() {
    return &get_qnlocale_context()->current_slot().locale();
}

bool is_term_encoding_consistent() noexcept {
    return true;
}

QnLocaleCtx::QnLocaleCtx() : discovery_(std::make_unique<locale_context>(read_environment_snapshot())) {
    databases_.push_back(std::make_unique<locale_database>());
    database_.store(databases_.back().get(), std::memory_order_release);
}

QnLocaleCtx::~QnLocaleCtx() = default;

std::unique_ptr<QnLocaleCtx> QnLocaleCtx::make() {
    auto context = std::make_unique<QnLocaleCtx>();
    try {
        context->initQnLcCtx();
    } catch (...) {
        // A context with less in it serves callers better than none: what is missing is reported at its use.
    }
    return context;
}

// Nothing below may ask for the process-wide context: this thread is inside the region that builds it.
void QnLocaleCtx::initQnLcCtx() {
    make_classic_slot();
    make_system_locale();
    set_icu_defaults();
    initCatNameTbl();
    initOptDataTypeTbl();
    log_event(init_title, "Locale context was initialized.");
}

void QnLocaleCtx::make_classic_slot() {
    auto locale = std::make_unique<QnLocaleImpl>(database_);
    locale->setLcName(built_in_locale, "");
    locale->setEncoding(built_in_encoding);
    QnLocale const* const made = locale.get();
    append_slot(std::make_unique<global_locale_slot>(std::move(locale)));
    classic_ = made; // not earlier: where there is no slot there is no locale
    system_.store(classic_, std::memory_order_release);
}

// Its final content comes at the end of start-up, and only then is it handed out.
void QnLocaleCtx::make_system_locale() {
    auto locale = std::make_unique<QnLocaleImpl>(database_);
    locale->setLcName(built_in_locale, "");
    locale->setLcName("en_US", "", QnLocale::messages);
    locale->setEncoding(built_in_encoding);
    locale->setTerminalEncoding(built_in_encoding);
    system_locales_.push_back(std::move(locale));
}

void QnLocaleCtx::set_icu_defaults() {
    ucnv_setDefaultName(built_in_encoding); // ICU built for UTF-8 systems has no other default anyway
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(built_in_locale), status);
    if (U_FAILURE(status))
        log_event(init_title, "Failed to set default locale", status);
}

void QnLocaleCtx::initCatNameTbl() {
    category_by_name_ = {
        {"ctype", QnLocale::ctype},     {"collate", QnLocale::collate},   {"time", QnLocale::time},
        {"numeric", QnLocale::numeric}, {"monetary", QnLocale::monetary}, {"messages", QnLocale::messages},
    };
    for (auto const& [name, category] : category_by_name_)
        name_by_category_.emplace(category, name);
}

void QnLocaleCtx::initOptDataTypeTbl() {
    optional_data_by_name_ = {
        {"jvmencoding", QnLcOptDataCtx::jvm_encoding},
        {"termencoding", QnLcOptDataCtx::terminal_encoding},
        {"terminputencoding", QnLcOptDataCtx::terminal_input_encoding},
        {"termoutputencoding", QnLcOptDataCtx::terminal_output_encoding},
        {"papersize", QnLcOptDataCtx::paper_size},
        {"unittype", QnLcOptDataCtx::measurement_system},
    };
}

QnLocale::LcCategory QnLocaleCtx::getLcCategory(std::string_view name) const {
    return find_or_raise(category_by_name_, support::ascii_lower_copy(name));
}

std::string QnLocaleCtx::getLcCatName(QnLocale::LcCategory category) const {
    return find_or_raise(name_by_category_, category);
}

QnLcOptDataCtx::LcOptDataType QnLocaleCtx::getOptDataType(std::string_view name) const {
    return find_or_raise(optional_data_by_name_, support::ascii_lower_copy(name));
}

QnLocale const& QnLocaleCtx::classic() const {
    return present(classic_);
}

QnLocale const& QnLocaleCtx::system() const {
    return present(system_.load(std::memory_order_acquire));
}

QnLocaleImpl& QnLocaleCtx::system_locale() const {
    return present(system_locales_.empty() ? nullptr : system_locales_.back().get());
}

global_locale_slot& QnLocaleCtx::current_slot() const {
    return present(current_slot_.load(std::memory_order_acquire));
}

void QnLocaleCtx::publish_slot(std::unique_ptr<global_locale_slot> slot) {
    std::lock_guard const lock(mutex_);
    append_slot(std::move(slot));
}

void QnLocaleCtx::append_slot(std::unique_ptr<global_locale_slot> slot) {
    global_locale_slot* const current = slot.get();
    slots_.push_back(std::move(slot));
    current_slot_.store(current, std::memory_order_release);
}

std::size_t QnLocaleCtx::slot_count() const {
    std::lock_guard const lock(mutex_);
    return slots_.size();
}

std::map<std::string, std::string> QnLocaleCtx::getDataPathNames() const {
    std::lock_guard const lock(records_mutex_);
    if (database_path_.empty())
        return {};
    return {{"xml_locale_database_path", database_path_}};
}

void QnLocaleCtx::set_database_path(std::string path) {
    std::lock_guard const lock(records_mutex_);
    database_path_ = std::move(path);
}

} // namespace fl::i18n::lcmgmt
