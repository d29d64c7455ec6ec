#pragma once
// The refusal of a selection smaller than its command needs (each command's minimum is one of
// its facts), and the largest number of sequences a file may hold.

#include <cstdint>
#include <string>

namespace ovelt {

// "At least 2 sequences are needed for the present analysis", two line breaks and
// "Invalid Selection !" ("... 1 sequence is needed ..." for one).
[[nodiscard]] std::string TooFewSequencesMessage(int32_t minimum);

// The largest number of sequences a file may hold: `TotalSeqs` is a 16-bit count.
inline constexpr int32_t kMaxTotalSeqs = 32767;
[[nodiscard]] constexpr bool SequenceCountFits(int64_t seqs) {
  return seqs >= 0 && seqs <= kMaxTotalSeqs;
}

}  // namespace ovelt
