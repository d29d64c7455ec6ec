#include "core/minimum_sequences.h"

namespace ovelt {

namespace {

int32_t MinimumFor(int32_t command) {
  switch (command) {
    case 2: case 4: case 7: case 8: case 15: case 21: case 24: case 30:
      return 2;
    case 5: case 11:
      return 4;
    case 22: case 23: case 25: case 26: case 27:
      return 1;
    default:
      return 0;
  }
}

}  // namespace

int32_t MinimumSequences(int16_t analysis, int32_t in_use) {
  const int32_t minimum = MinimumFor(analysis % 1000);
  return in_use < minimum ? minimum : 0;
}

std::string TooFewSequencesMessage(int32_t minimum) {
  const std::string need = minimum == 1 ? " sequence is needed for the present analysis"
                                        : " sequences are needed for the present analysis";
  return "At least " + std::to_string(minimum) + need + "\n\nInvalid Selection !";
}

}  // namespace ovelt
