#pragma once
// The sequences a result was computed from, as the print head of its chart names them: the set
// (empty for all included sequences) and the count of each of the two selections.

#include <cstdint>
#include <string>

namespace ovelt {

struct UsedSequences {
  std::string FirstSet;
  int32_t FirstCount = 0;
  std::string SecondSet;
  int32_t SecondCount = 0;
};

}  // namespace ovelt
