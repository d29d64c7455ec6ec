#pragma once
// The words into which a report translates a significance mark ("", "#", "*", "**", "***",
// "n.d.", possibly padded with blanks), and the legend printed under a table of marks.
//
// The two families differ on purpose: Tajima's test is marked at P = 0.10, 0.05, 0.01 and
// 0.001, Fu and Li's tests at P = 0.10, 0.05 and 0.02, with no mark beyond.

#include <string>
#include <string_view>

namespace ovelt {

enum class MarkFamily { kTajima, kFuLi };

// The words of a mark. Blanks around the mark are ignored; a mark that the family does not
// give (such as "***" for Fu and Li) has no words and yields "".
[[nodiscard]] std::string SignificanceWords(std::string_view mark, MarkFamily family);

// The legend of a family's marks.
[[nodiscard]] std::string SignificanceLegend(MarkFamily family);

}  // namespace ovelt
