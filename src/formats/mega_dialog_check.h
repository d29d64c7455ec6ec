#pragma once
// The check of the "MEGA Data File" dialog. Each symbol is one character, and it follows the one
// rule of every symbol field of the program (the NEXUS options apply the same): no nucleotide
// letter, which would stand for a base and a symbol at once, and none of the characters NEXUS
// reserves, so that the open file can be saved as NEXUS with its symbols.

#include <optional>
#include <string>

namespace ovelt {

inline constexpr const char* kMegaDialogTitle = "MEGA Data File";
inline constexpr const char* kMissingSymbolTitle = "Invalid Selection ";
inline constexpr const char* kMissingSymbolText = "Missing data";

struct MegaSymbolRefusal {
  std::string Text;
  std::string Title = kMissingSymbolTitle;
};

// nullopt when the three typed symbols can be used. An empty one (or a blank) gives "Missing
// data"; a nucleotide "The Matching Symbol can not be a nucleotide: 'A'"; a reserved character
// "The Gap Symbol can not be ';': NEXUS reserves it". All under the title "Invalid Selection ".
[[nodiscard]] std::optional<MegaSymbolRefusal> CheckMegaSymbols(const std::string& match,
                                                                const std::string& gap,
                                                                const std::string& missing);

}  // namespace ovelt
