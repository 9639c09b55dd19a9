// Built with libc++, whatever the library itself is built with: the code that adds to the standard library's
// facets, and that which reads through its streams.

#include "date_time/input_rows.hpp"
#include "locale_runtime/context/char16_streams.hpp"
#include "support/locale_double.hpp"

#include <iostream>

#ifndef _LIBCPP_VERSION
#error "This is not libc++."
#endif

namespace fl::i18n {

// As much of a locale as the facets ask for; the rest of the library isn't here.
QnLocale::~QnLocale() = default;

QnLocale const& QnLocale::global() {
    static testing::locale_double const locale("");
    return locale;
}

} // namespace fl::i18n

int main() {
    std::string faults = fl::testing::char16_fault(fl::i18n::facet::get_global_std_locale());
    for (fl::testing::input_row const& row : fl::testing::input_rows)
        if (fl::testing::outcome(row) != row.expected)
            faults += std::string(row.format) + " reads " + fl::testing::outcome(row) + ", not " +
                      row.expected + '\n';
    std::cout << faults;
    return faults.empty() ? 0 : 1;
}
