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

std::string SetTooSmallReason(const ActiveData& ad, int16_t set_index, int32_t in_use) {
  const std::string count =
      std::to_string(in_use) + (in_use == 1 ? " included sequence." : " included sequences.");
  if (set_index < 1 || set_index > ad.SetCount())
    return std::string(in_use == 1 ? "There is " : "There are ") + count;
  std::string name = ad.SequenceSets[static_cast<size_t>(set_index)].nombre();
  while (!name.empty() && name.back() == ' ') name.pop_back();
  return "The set " + name + " holds " + count;
}

}  // namespace ovelt
