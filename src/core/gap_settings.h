#pragma once
// The small dialog of the three data settings (`GapsInWindow`, `UseMutations`, `GapsInSets`):
// one face per command, two choices each. The dialog writes its field only on OK, through
// `ApplyForm17`; leaving it any other way changes nothing.

#include <cstdint>
#include <string>

#include "core/active_data.h"

namespace ovelt {

inline constexpr int16_t kGapsInWindowCommand = 101;
inline constexpr int16_t kSegSitesMutationsCommand = 102;
inline constexpr int16_t kGapsInSetsCommand = 103;

struct Form17Face {
  std::string title;
  std::string frame;
  std::string choice1;
  std::string choice2;
};

// The texts of the face for `analysis` 101, 102 or 103; all empty for any other number.
[[nodiscard]] Form17Face Form17FaceFor(int16_t analysis);

// The choice (1 or 2) that the current settings select; 0 for an unknown face.
[[nodiscard]] int Form17CurrentChoice(const ActiveData& ad, int16_t analysis);

// OK with `choice` 1 or 2 (anything else changes nothing). 101: choice 1 counts gap sites in
// the windows; 102: choice 2 uses mutations; 103: `GapsInSets` := choice, and a change while some
// sequences are excluded reclassifies the included layer.
void ApplyForm17(ActiveData& ad, int16_t analysis, int choice);

}  // namespace ovelt
