#include "tools/distribution_messages.h"

#include <stdexcept>
#include <string>

namespace ovelt {

ToolMessage F20Filtros(int16_t code) {
  switch (code) {
    case kF20MissingData:
      return {"Missing data"};
    case kF20NotComputable:
      return {"This table can not be computed"};
    case kF20MinimumTwoSequences:
      return {"The minimum number of sequences is two"};
    case kF20TotalAboveZero:
      return {"The total number of sites must be higher than 0"};
    case kF20TotalBelowLimit:
      return {"The total number of elements must be lower than 32767"};
    case kF20NoNegativeCount:
      return {"The minimum number of polymorphic sites or differences is 0"};
    case kF20HaplotypesAboveSample:
      return {"The total number of haplotypes must be equal or lower than the sample size"};
    case kF20SampleTooLarge:
      return {"The sample size must be lower than 501"};
    case kF20MinimumOneHaplotype:
      return {"The minimum number of haplotypes is one"};
    case kF20ThetaAboveZero:
      return {"Theta must be higher than 0"};
    case kF20LambdaAboveZero:
      return {"The lambda value must be higher than 0"};
    case kF20PAboveZero:
      return {"The p-value must be higher than 0"};
    case kF20PBelowOne:
      return {"The p-value must be lower than 1"};
    case kF20InvalidNumber:
      return {"Invalid number"};
    default:
      break;
  }
  throw std::invalid_argument("no refusal of Discrete Distributions has the code " +
                              std::to_string(code));
}

}  // namespace ovelt
