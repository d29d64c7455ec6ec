#include "core/minimum_sequences.h"

namespace ovelt {

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
