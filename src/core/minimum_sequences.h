#pragma once
// The refusal of a selection smaller than its command needs (each command's minimum is one of
// its facts), and the largest number of sequences a file may hold.

#include <cstdint>
#include <string>

#include "core/active_data.h"

namespace ovelt {

// "At least 2 sequences are needed for the present analysis", two line breaks and
// "Invalid Selection !" ("... 1 sequence is needed ..." for one).
[[nodiscard]] std::string TooFewSequencesMessage(int32_t minimum);

// Why a selection is too small, naming its set, for a user who does not see the dialog: "The
// set Pop1 holds 3 included sequences." (set 0, all included: "There are 3 included
// sequences.").
[[nodiscard]] std::string SetTooSmallReason(const ActiveData& ad, int16_t set_index,
                                            int32_t in_use);

// The largest number of sequences a file may hold: `TotalSeqs` is a 16-bit count.
inline constexpr int32_t kMaxTotalSeqs = 32767;
[[nodiscard]] constexpr bool SequenceCountFits(int64_t seqs) {
  return seqs >= 0 && seqs <= kMaxTotalSeqs;
}

}  // namespace ovelt
