#pragma once
// Limits of what the output windows show, and the words of the prompts that offer a file instead.

#include <cstdint>
#include <string>

namespace ovelt {

// A pairwise grid of more rows than this is not shown; the user is offered a file instead.
inline constexpr int64_t kMaxPairwiseGridRows = 16290;
// The disk estimate of the prompt takes each streamed row as this many bytes.
inline constexpr int64_t kBytesPerStreamedRow = 65;
// A grid of more rows than this asks before printing.
inline constexpr int64_t kPrintPromptRows = 200;

[[nodiscard]] constexpr bool IsGridTooBig(int64_t rows) { return rows > kMaxPairwiseGridRows; }

// Kilobytes a streamed output of `rows` rows needs, rounded down.
[[nodiscard]] constexpr int64_t StreamedKilobytes(int64_t rows) {
  return rows * kBytesPerStreamedRow / 1000;
}

// The question of a grid too big for the screen. `session_file_name` is "" when no session file
// is open.
[[nodiscard]] std::string TooBigQuestion(int64_t rows, const std::string& session_file_name);
// The same for a table of pairwise comparisons.
[[nodiscard]] std::string TooBigPairsQuestion(int64_t rows, const std::string& session_file_name);
// The question before printing a long grid.
[[nodiscard]] std::string PrintFinalOnlyQuestion(int64_t rows);

}  // namespace ovelt
