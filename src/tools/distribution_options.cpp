#include "tools/distribution_options.h"

namespace ovelt {

DistributionBoxes F20DefectValues() {
  DistributionBoxes boxes;
  boxes.Binomial = {"0.5", "10", "5"};
  boxes.Hypergeometric = {"20", "10", "5", "2"};
  boxes.Poisson = {"1", "1"};
  boxes.Ewens = {"10", "3", "2"};
  return boxes;
}

}  // namespace ovelt
