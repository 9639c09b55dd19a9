/// Where the XML locale database of this process is.
#pragma once

#include <string>

namespace fl::i18n::lcmgmt {

class QnLocaleCtx;
struct locale_context;

/// The file that the library's environment variables name, otherwise the one of the install tree. It need not
/// exist; empty only where the library lies in no install tree. Which way it was found goes to the log.
std::string find_database_file(locale_context const& found, QnLocaleCtx& log);

} // namespace fl::i18n::lcmgmt
