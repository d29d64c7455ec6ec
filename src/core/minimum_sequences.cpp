#include "core/minimum_sequences.h"

namespace ovelt {

std::string TooFewSequencesMessage(int32_t minimum) {
  const std::string need = minimum == 1 ? " sequence is needed for the present analysis"
                                        : " sequences are needed for the present analysis";
  return "At least " + std::to_string(minimum) + need + "\n\nInvalid Selection !";
}

}  // namespace ovelt
