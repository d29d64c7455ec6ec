#pragma once
// The check of the "MEGA Data File" dialog: each symbol is one character.

#include <optional>
#include <string>

namespace ovelt {

inline constexpr const char* kMegaDialogTitle = "MEGA Data File";
inline constexpr const char* kMissingSymbolTitle = "Invalid Selection ";
inline constexpr const char* kMissingSymbolText = "Missing data";

// True when the three typed symbols can be used; an empty one (or a blank) cannot.
[[nodiscard]] bool MegaSymbolsAreGiven(const std::string& match, const std::string& gap,
                                       const std::string& missing);

}  // namespace ovelt
