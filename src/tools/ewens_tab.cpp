#include "tools/ewens_tab.h"

#include "tools/expected_haplotypes.h"

namespace ovelt {

EwensResult ComputeEwens(const EwensInput& input, const EwensTailSource& tail) {
  const EwensTail t = tail(input.SampleSize, input.NHap, input.Theta);
  return {t.PEqual, t.StrobeckS, ExpectedHaplotypes(input.SampleSize, input.Theta), t.Fs};
}

}  // namespace ovelt
