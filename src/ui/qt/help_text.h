#pragma once
// The words and places of the Help menu: the message shown when the manual is missing, the
// citation, and the two web addresses. No window code here.

#include <string>

namespace ovelt {

inline constexpr const char* kBrowserError = "Browser Error";
inline constexpr const char* kCitationTitle = "Citation";
// Where the two web commands lead.
inline constexpr const char* kWebPageAddress = "https://ovelt.example.org/";
inline constexpr const char* kBugReportAddress = "https://ovelt.example.org/bugs";

// The message when no manual folder is found (an install whose manual was removed). Its words
// have named the help file of an older release ever since, and users know them as they are.
inline constexpr const char* kHelpFileMissing =
    "Help file: 'OVELT#2.HLP' not found. Make sure that it is in the same directory as "
    "OVELT#2.EXE";

// The lines of the citation window.
[[nodiscard]] std::string CitationText();

}  // namespace ovelt
