#pragma once
// A stop codon at the end of the coding region: it should be noncoding, and the dialog of
// coding regions offers to make it so when the user leaves.

#include <cstdint>
#include <optional>
#include <string>

#include "core/active_data.h"

namespace ovelt {

struct StopCodonQuestion {
  int32_t a = 0, b = 0, c = 0;  // the codon's three sites
  std::string text;             // the question, two lines joined by "\n"
};

// The last complete codon, found from the position at the last coding site l (3: sites l-2..l;
// 2: l-4..l-2; 1: l-3..l-1), read on the first included sequence. A question when its sites
// hold positions 1, 2, 3 in order and it is a stop in the current genetic code; nullopt else.
[[nodiscard]] std::optional<StopCodonQuestion> STOPenelFinal(const ActiveData& ad);

// Yes to the question: the three sites become noncoding. Returns true when a position changed.
bool ApplyStopAsNonCoding(ActiveData& ad, int32_t a, int32_t b, int32_t c);

}  // namespace ovelt
