// How often is the encoding of a list of names found? Prints Markdown tables: `detect_charset` beside the
// first guess of ICU's detector, on the names of countries and languages in many languages and encodings, by
// length. bench/README.md keeps and explains the result.
//
//     fl_i18n_detection_accuracy
//
// An answer counts as right if the bytes, read in that encoding, are the text again: many texts are the same
// bytes in several encodings. Start-up is not run, so that the system's encoding is US-ASCII on every
// machine, which is right for none of these texts.

#include "display_names.hpp"
#include "icu_detection.hpp"

#include <fl/i18n.hpp>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace fl::i18n;

constexpr std::array<std::size_t, 5> lengths = {20, 50, 100, 300, 1000}; // in UTF-16 code units
constexpr std::size_t most_samples = 50;                                 // of one language
constexpr int least_samples = 5; // of one encoding; fewer are no measurement

struct subject {
    char const* encoding;
    std::vector<char const*> languages;
    bool with_mark = false; // U+FEFF in front
};

std::vector<subject> const& subjects() {
    static std::vector<subject> const list = {
        {"UTF-8", {"fr", "cs", "ru", "ar", "th", "ja", "zh", "ko"}},
        {"UTF-16BE", {"de", "ru", "ja", "ar"}, true},
        {"UTF-16LE", {"de", "ru", "ja", "ar"}, true},
        {"UTF-16BE", {"de", "ru", "ja", "ar"}},
        {"UTF-16LE", {"de", "ru", "ja", "ar"}},
        {"UTF-32BE", {"de", "ru", "ja", "ar"}},
        {"UTF-32LE", {"de", "ru", "ja", "ar"}, true},
        {"ISO-8859-1", {"de", "fr", "es", "it", "pt", "sv", "da", "nl"}},
        {"windows-1252", {"de", "fr", "es", "it", "pt", "sv", "da", "nl"}},
        {"ISO-8859-2", {"cs", "hu", "pl"}},
        {"windows-1250", {"cs", "hu", "pl"}},
        {"ISO-8859-5", {"ru"}},
        {"windows-1251", {"ru", "uk", "bg"}},
        {"KOI8-R", {"ru"}},
        {"ISO-8859-6", {"ar"}},
        {"windows-1256", {"ar"}},
        {"ISO-8859-7", {"el"}},
        {"windows-1253", {"el"}},
        {"ISO-8859-8", {"he"}},
        {"windows-1255", {"he"}},
        {"ISO-8859-9", {"tr"}},
        {"windows-1254", {"tr"}},
        {"Shift_JIS", {"ja"}},
        {"EUC-JP", {"ja"}},
        {"GB18030", {"zh"}},
        {"Big5", {"zh_TW"}},
        {"EUC-KR", {"ko"}},
        {"ISO-2022-JP", {"ja"}},
        {"windows-874", {"th"}},
        {"windows-1257", {"lt", "lv"}},
        {"IBM866", {"ru"}},
    };
    return list;
}

/// The names of countries and languages that the encoding can hold, a line each.
std::u16string names(std::string const& language, std::string const& encoding) {
    codecvt_ustring_to_string const strict(encoding, false);
    std::u16string result;
    for (auto const& list : {demo::country_names(language), demo::language_names(language)})
        for (demo::message const& name : list) {
            try {
                static_cast<void>(strict.convert(name.text));
                result += name.text + u"\n";
            } catch (CvtExceptionBase const&) {
            }
        }
    return result;
}

/// Pieces of exactly `length` units from all over the text. None overlaps another.
std::vector<std::u16string> samples(std::u16string const& text, std::size_t length) {
    std::size_t const count = std::min(most_samples, text.size() / length);
    std::vector<std::u16string> result;
    for (std::size_t i = 0; i < count; ++i)
        result.push_back(text.substr(i * (text.size() / count), length));
    return result;
}

bool is_right(std::string const& answer, std::string const& bytes, std::u16string const& text) {
    try {
        return !answer.empty() &&
               codecvt_string_to_ustring(answer, false).convert(bytes.data(), bytes.size()) == text;
    } catch (CvtExceptionBase const&) {
        return false;
    }
}

/// Counts of samples, and sums over them.
struct score {
    int samples = 0;
    int right = 0;
    int system = 0;  // answered with the system's encoding, and not right
    int by_rule = 0; // taken for ASCII or UTF-8, and not right
    int icu_right = 0;
    int confidence = 0; // of ICU's first guess
    int second_confidence = 0;

    void add(score const& other) {
        for (auto const count : {&score::samples, &score::right, &score::system, &score::by_rule,
                                 &score::icu_right, &score::confidence, &score::second_confidence})
            this->*count += other.*count;
    }
};

score measure(std::string const& encoding, std::u16string const& text) {
    std::string const bytes = codecvt_ustring_to_string(encoding, false).convert(text.data(), text.size());
    std::string const answer = detect_charset(bytes.data(), bytes.size(), std::clog, u"sample");
    bench::icu_guess const guess = bench::guess_with_icu(bytes);
    score result;
    result.samples = 1;
    if (is_right(answer, bytes, text))
        result.right = 1;
    else if (answer == QnLocale::system().localeSpecificEncoding())
        result.system = 1;
    else if (answer == "UTF-8")
        result.by_rule = 1;
    result.icu_right = is_right(guess.encoding, bytes, text);
    result.confidence = guess.confidence;
    result.second_confidence = guess.second_confidence;
    return result;
}

bool is_ascii(std::u16string const& text) {
    for (char16_t const unit : text)
        if (unit >= 0x80)
            return false;
    return true;
}

/// All samples of one length. ASCII has no encoding to find, and is left out.
score measure(subject const& which, std::size_t length) {
    score result;
    for (char const* const language : which.languages)
        for (std::u16string const& text : samples(names(language, which.encoding), length))
            if (!is_ascii(text))
                result.add(measure(which.encoding, which.with_mark ? u"\uFEFF" + text : text));
    return result;
}

using scores = std::array<score, lengths.size()>; // by length

double mean(int sum, int count) {
    return count == 0 ? 0 : static_cast<double>(sum) / count;
}

double percent(int part, int whole) {
    return 100 * mean(part, whole);
}

void print_heading(char const* first) {
    std::printf("\n| %s |", first);
    for (std::size_t const length : lengths)
        std::printf(" %zu |", length);
    std::printf("\n|---|");
    for (std::size_t i = 0; i < lengths.size(); ++i)
        std::printf("---|");
    std::printf("\n");
}

void print_row(std::string const& title, scores const& row, auto print_cell) {
    std::printf("| %s |", title.c_str());
    for (score const& cell : row) {
        if (cell.samples < least_samples)
            std::printf(" |");
        else
            print_cell(cell);
    }
    std::printf("\n");
}

void print_total(char const* title, scores const& totals, auto count) {
    print_row(title, totals, [&](score const& s) { std::printf(" %.1f |", percent(count(s), s.samples)); });
}

void print_totals(scores const& totals) {
    print_heading("% of all lists, by length");
    print_total("right", totals, [](score const& s) { return s.right; });
    print_total("system's encoding instead", totals, [](score const& s) { return s.system; });
    print_total("UTF-8 instead", totals, [](score const& s) { return s.by_rule; });
    print_total("wrong otherwise", totals,
                [](score const& s) { return s.samples - s.right - s.system - s.by_rule; });
    print_total("ICU's first guess right", totals, [](score const& s) { return s.icu_right; });
    print_total("ICU's first guess wrong", totals, [](score const& s) { return s.samples - s.icu_right; });
    print_row("number of lists", totals, [](score const& s) { std::printf(" %d |", s.samples); });
}

} // namespace

int main() try {
    scores totals;
    std::vector<std::pair<std::string, scores>> rows;
    for (subject const& which : subjects()) {
        auto& [title, row] = rows.emplace_back(which.encoding, scores());
        title += which.with_mark ? " with U+FEFF" : "";
        for (std::size_t i = 0; i < lengths.size(); ++i)
            totals[i].add(row[i] = measure(which, lengths[i]));
    }
    std::printf("The system's encoding, without start-up: %s\n",
                QnLocale::system().localeSpecificEncoding().c_str());
    print_heading("Lists of names, by length in UTF-16 code units: % right, library / ICU's first guess");
    for (auto const& [title, row] : rows)
        print_row(title, row, [](score const& s) {
            std::printf(" %.0f / %.0f |", percent(s.right, s.samples), percent(s.icu_right, s.samples));
        });
    print_heading("ICU's mean confidence in its first / second guess");
    for (auto const& [title, row] : rows)
        print_row(title, row, [](score const& s) {
            std::printf(" %.0f / %.0f |", mean(s.confidence, s.samples),
                        mean(s.second_confidence, s.samples));
        });
    print_totals(totals);
    return 0;
} catch (std::exception const& failure) {
    std::cerr << "fl_i18n_detection_accuracy: " << failure.what() << '\n';
    return 1;
}
