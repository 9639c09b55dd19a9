#include "text_bench.hpp"

#include "allocations.hpp"
#include "comparison.hpp"
#include "display_names.hpp"

#include <fl/i18n.hpp>

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/uregex.h>
#include <unicode/ustring.h>
#include <unicode/utrans.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

namespace {

using namespace fl::i18n;
using fl::ustring;
using view = std::u16string_view;

std::int32_t length(view text) {
    return static_cast<std::int32_t>(text.size());
}

/// Language names, joined to a text of exactly `size` units: English is ASCII here, French mostly so, Russian
/// and Japanese have letters that come apart.
ustring real_text(std::string const& language, std::size_t size) {
    ustring text;
    std::vector<demo::message> const names = demo::language_names(language);
    while (text.size() < size)
        for (demo::message const& name : names) {
            bool const is_plain =
                name.text.find_first_not_of(u"abcdefghijklmnopqrstuvwxyz"
                                            u"ABCDEFGHIJKLMNOPQRSTUVWXYZ ") == ustring::npos;
            if (is_plain || language != "en")
                text += name.text + u", ";
        }
    text.resize(size);
    return text;
}

/// Runs `work` in both roles of a benchmark.
template <class Work>
auto measured(Work work) {
    return [work](benchmark::State& state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(work());
    };
}

/// Of two orders only the sign counts.
bool are_same(int ours, int theirs) {
    return (ours < 0) == (theirs < 0) && (ours > 0) == (theirs > 0);
}

template <class Ours, class Theirs>
bool are_same(Ours ours, Theirs theirs) {
    return static_cast<std::int64_t>(ours) == static_cast<std::int64_t>(theirs);
}

/// A pair, and a remark when the library's side allocates.
template <class Ours, class Theirs>
void pair(std::string const& name, double limit, Ours ours, std::string const& peer, Theirs theirs) {
    if (!are_same(ours(), theirs())) // also makes what is made once in a process, and doesn't count
        throw std::runtime_error("the two sides of " + name + " differ");
    std::size_t const before = allocation_count();
    ours();
    if (std::size_t const count = allocation_count() - before; count > 0)
        remark(name + ": " + std::to_string(count) + " allocations for a call");
    compare(name, limit, measured(ours), peer, measured(theirs));
}

// Transforms
// ------------------------------------------------------------------------------------------------------

using icu_transform = std::int32_t (*)(char16_t*, std::int32_t, char16_t const*, std::int32_t, UErrorCode*);

template <UNormalizer2 const* (*Form)(UErrorCode*)>
std::int32_t icu_form(char16_t* dst, std::int32_t room, char16_t const* src, std::int32_t size,
                      UErrorCode* status) {
    return unorm2_normalize(Form(status), src, size, dst, room, status);
}

template <decltype(u_strToUpper)& Map>
std::int32_t icu_case(char16_t* dst, std::int32_t room, char16_t const* src, std::int32_t size,
                      UErrorCode* status) {
    return Map(dst, room, src, size, "", status);
}

template <class Tag>
void register_transform(std::string const& name, std::shared_ptr<ustring> const& text, icu_transform bare) {
    auto const buffer = std::make_shared<ustring>(4 * text->size(), u'\0');
    pair(
        name, text->size() < 1000 ? 0 : 1.05,
        [=] { return detail::transform(buffer->data(), buffer->size(), text->data(), text->size(), Tag()); },
        "icu",
        [=] {
            UErrorCode status = U_ZERO_ERROR;
            return bare(buffer->data(), length(*buffer), text->data(), length(*text), &status);
        });
}

std::int32_t transliterated(UTransliterator* shared, ustring text) {
    UErrorCode status = U_ZERO_ERROR;
    UTransliterator* const clone = utrans_clone(shared, &status);
    std::int32_t size = length(text);
    std::int32_t limit = size;
    utrans_transUChars(clone, text.data(), &size, limit, 0, &limit, &status);
    utrans_close(clone);
    return size;
}

void register_no_diacritics(std::string const& name, std::shared_ptr<ustring> const& text) {
    static UErrorCode status = U_ZERO_ERROR;
    static UTransliterator* const shared = utrans_openU(u"any-NFD; [:Nonspacing_Mark:] any-Remove; any-NFC",
                                                        48, UTRANS_FORWARD, nullptr, 0, nullptr, &status);
    auto const buffer = std::make_shared<ustring>(text->size(), u'\0');
    pair(
        name, text->size() < 1000 ? 0 : 1.05,
        [=] {
            return detail::transform(buffer->data(), buffer->size(), text->data(), text->size(),
                                     to_no_diacritics());
        },
        "transliterator", [=] { return transliterated(shared, *text); });
}

void register_transforms(std::string const& kind, std::shared_ptr<ustring> const& text) {
    std::string const name = "transform/" + kind;
    register_transform<to_upper>(name + "/upper", text, icu_case<u_strToUpper>);
    register_transform<to_lower>(name + "/lower", text, icu_case<u_strToLower>);
    register_transform<to_nfc>(name + "/nfc", text, icu_form<unorm2_getNFCInstance>);
    register_transform<to_nfd>(name + "/nfd", text, icu_form<unorm2_getNFDInstance>);
    register_transform<to_nfkc>(name + "/nfkc", text, icu_form<unorm2_getNFKCInstance>);
    register_transform<to_nfkd>(name + "/nfkd", text, icu_form<unorm2_getNFKDInstance>);
    register_no_diacritics(name + "/no_diacritics", text);
}

// Comparison: equal texts, so that both sides must read them to the end, and texts that ICU must look into
// from the start.
// ------------------------------------------------------------------------------------------------------

template <class Tag>
int compare_by(Tag tag, view a, view b) {
    return detail::compare(a.data(), a.size(), b.data(), b.size(), tag);
}

int icu_compare_forms(view a, view b, std::uint32_t options) {
    UErrorCode status = U_ZERO_ERROR;
    return unorm_compare(a.data(), length(a), b.data(), length(b), options, &status);
}

struct compatible_forms {
    explicit compatible_forms(std::size_t size) : a(4 * size, u'\0'), b(4 * size, u'\0') {}
    void fill(view x, view y) {
        a_form = nfkd(a, x);
        b_form = nfkd(b, y);
    }
    static view nfkd(ustring& buffer, view text) {
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t const size = icu_form<unorm2_getNFKDInstance>(buffer.data(), length(buffer), text.data(),
                                                                   length(text), &status);
        return view(buffer.data(), static_cast<std::size_t>(size));
    }
    ustring a;
    ustring b;
    view a_form;
    view b_form;
};

void register_rules(std::string const& name, std::shared_ptr<ustring> const& a,
                    std::shared_ptr<ustring> const& b) {
    double const limit = a->size() < 1000 ? 0 : 1.05;
    auto const forms = std::make_shared<compatible_forms>(a->size());
    pair(
        // Nothing is to be won where the first units decide.
        name + "/case_insensitive", a->front() == b->front() ? limit : 0,
        [=] { return compare_by(case_insensitive(), *a, *b); }, "icu",
        [=] {
            UErrorCode status = U_ZERO_ERROR;
            return u_strCaseCompare(a->data(), length(*a), b->data(), length(*b), 0, &status);
        });
    pair(
        name + "/normalized", limit, [=] { return compare_by(normalized_case_sensitive(), *a, *b); }, "icu",
        [=] { return icu_compare_forms(*a, *b, 0); });
    pair(
        name + "/normalized_insensitive", limit,
        [=] { return compare_by(normalized_case_insensitive(), *a, *b); }, "icu",
        [=] { return icu_compare_forms(*a, *b, U_COMPARE_IGNORE_CASE); });
    pair(
        name + "/compatibility", limit,
        [=] { return compare_by(normalized_compatibility_case_sensitive(), *a, *b); }, "icu",
        [=] {
            forms->fill(*a, *b);
            return u_strCompare(forms->a_form.data(), length(forms->a_form), forms->b_form.data(),
                                length(forms->b_form), false);
        });
    pair(
        name + "/compatibility_insensitive", limit,
        [=] { return compare_by(normalized_compatibility_case_insensitive(), *a, *b); }, "icu",
        [=] {
            forms->fill(*a, *b);
            return icu_compare_forms(forms->a_form, forms->b_form, U_COMPARE_IGNORE_CASE);
        });
}

void register_compare(std::string const& kind, std::shared_ptr<ustring> const& text) {
    auto const same = std::make_shared<ustring>(*text);
    auto const first =
        std::make_shared<ustring>(ustring(u"\u00E9").append(*text, 2)); // equal to the next one
    auto const second = std::make_shared<ustring>(ustring(u"e\u0301").append(*text, 2));
    pair(
        "compare/" + kind + "/equal/case_sensitive", 1.0,
        [=] { return compare_by(case_sensitive(), *text, *same); }, "std",
        [=] { return view(*text).compare(*same); });
    register_rules("compare/" + kind + "/equal", text, same);
    register_rules("compare/" + kind + "/from_the_start", first, second);
}

// Search, for what stands at the end, and for what is not there
// ------------------------------------------------------------------------------------------------------

ustring icu_upper(view text) {
    ustring result(text.size() + text.size() / 8, u'\0');
    UErrorCode status = U_ZERO_ERROR;
    result.resize(static_cast<std::size_t>(
        u_strToUpper(result.data(), length(result), text.data(), length(text), "", &status)));
    return result;
}

void register_find(std::string const& kind, std::shared_ptr<ustring> const& text) {
    ustring const patterns[] = {text->substr(text->size() - 7), u", there is no such language",
                                text->substr(0, 2) + u"#"};
    char const* const names[] = {"last", "none", "prefix_only"};
    for (std::size_t i = 0; i < 3; ++i) {
        ustring const pattern = patterns[i];
        pair(
            "find/" + kind + "/" + names[i] + "/case_sensitive", 1.0,
            [=] { return detail::find(*text, pattern, case_sensitive()); }, "std",
            [=] { return view(*text).find(pattern); });
    }
    ustring const pattern = patterns[1];
    pair(
        "find/" + kind + "/none/case_insensitive", text->size() < 1000 ? 0 : 1.05,
        [=] { return detail::find(*text, pattern, case_insensitive()); }, "icu_and_std",
        [=] { return icu_upper(*text).find(icu_upper(pattern)); });
    pair(
        "find/" + kind + "/none/normalized", text->size() < 1000 ? 0 : 1.05,
        [=] { return detail::find(*text, pattern, normalized_case_sensitive()); }, "icu_and_std",
        [=] {
            UErrorCode status = U_ZERO_ERROR;
            ustring form(text->size() * 2, u'\0');
            form.resize(static_cast<std::size_t>(icu_form<unorm2_getNFCInstance>(
                form.data(), length(form), text->data(), length(*text), &status)));
            return form.find(pattern);
        });
}

// Matching
// ------------------------------------------------------------------------------------------------------

struct regex_closer {
    void operator()(URegularExpression* expression) const noexcept { uregex_close(expression); }
};

/// A match by ICU alone, in the mode's normal form.
auto icu_match(ustring const& pattern, unsigned int mode, std::shared_ptr<ustring> const& text) {
    UErrorCode opened = U_ZERO_ERROR;
    std::shared_ptr<URegularExpression> const expression(
        uregex_open(pattern.data(), length(pattern), UREGEX_DOTALL, nullptr, &opened), regex_closer());
    auto const buffer = std::make_shared<ustring>(4 * text->size(), u'\0');
    auto const form = mode == 2 ? icu_form<unorm2_getNFCInstance> : icu_form<unorm2_getNFDInstance>;
    return [=] {
        UErrorCode status = U_ZERO_ERROR;
        view subject = *text;
        if (mode != 0) {
            std::int32_t const size =
                form(buffer->data(), length(*buffer), text->data(), length(*text), &status);
            subject = view(buffer->data(), static_cast<std::size_t>(size));
        }
        uregex_setText(expression.get(), subject.data(), length(subject), &status);
        return uregex_matches(expression.get(), -1, &status) != 0;
    };
}

void register_match(std::string const& kind, std::shared_ptr<ustring> const& text) {
    ustring const pattern = u".*, [a-z].*";
    for (unsigned int const mode : {0U, 2U, 6U}) {
        auto const simple = std::make_shared<simple_pattern_match>();
        simple->open(pattern, mode);
        auto const ours = std::make_shared<pattern_match>(pattern, mode);
        auto const theirs = icu_match(pattern, mode, text);
        std::string const name = "match/" + kind + "/mode_" + std::to_string(mode);
        double const limit = text->size() < 1000 ? 0 : 1.05;
        pair(
            name + "/pattern_match", limit, [=] { return ours->match(*text); }, "icu", theirs);
        pair(
            name + "/simple_pattern_match", limit,
            [=] {
                regex_excp_id status = regex_not_opened;
                return simple->match(*text, status);
            },
            "icu", theirs);
    }
}

} // namespace

void register_text_benchmarks() {
    for (std::size_t const size : {20U, 1000U, 10000U})
        for (std::string const language : {"en", "fr", "ru", "ja"}) {
            auto const text = std::make_shared<ustring>(real_text(language, size));
            std::string const kind = language + "/" + std::to_string(size);
            register_transforms(kind, text);
            register_compare(kind, text);
            register_find(kind, text);
            register_match(kind, text);
        }
}

} // namespace bench
