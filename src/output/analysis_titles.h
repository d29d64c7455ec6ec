#pragma once
// Titles of the analyses, by `Analysis` modulo 1000, and the captions of the output windows.

#include <string>

namespace ovelt {

// The title of the text window, the printout and the saved file; "" for a code without one.
[[nodiscard]] std::string AnalysisTitle(int code);

// Caption of the text window `Form5`, ending in the data file's short name.
[[nodiscard]] std::string TextWindowCaption(int code, const std::string& file_short_name);

// Caption of the grid window `Form10`; "Output. Grid" for a code without its own.
[[nodiscard]] std::string GridWindowCaption(int code);

// Caption of the second grid window `Form10b`.
[[nodiscard]] std::string SecondGridWindowCaption(int code);

}  // namespace ovelt
