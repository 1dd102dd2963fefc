#pragma once

#include "ErrorLexiconGlobal.h"

#include <string>

/// User-visible texts of error codes. Every function may be called from any thread, and before an application object
/// exists.
namespace ErrorLexicon {

/// Looks up the text of an error code in the current language.
///
/// Known are the results of the request library (-1, -4, -18, -101, 3101, 7000), the HTTP statuses 400 to 599 (one
/// without a text has that of its class, 400 or 500) and the codes of the platform emulator (1001 to 1006).
///
/// @param nErrorCode the code
/// @param strText receives the text as UTF-8; untouched when the code is unknown
/// @return 0 when the code is known, else -1
ERRORLEXICON_EXPORT int ErrorLexiconQuery(int nErrorCode, std::string& strText);

/// Sets the language of the texts for the process, initially "en".
///
/// @param strLanguage identified by its first part, before "-" or "_", in upper or lower case ("de", "DE", "de_AT");
///        the texts of an unknown language are English
ERRORLEXICON_EXPORT void SetLanguage(const std::string& strLanguage);

}  // namespace ErrorLexicon
