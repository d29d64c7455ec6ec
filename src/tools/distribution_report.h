#pragma once
// The reports of "Discrete Distributions": the typed values under " ====== Input Data ======",
// then the probabilities under " ======== Output ========".

#include <string>

#include "tools/discrete_probabilities.h"
#include "tools/distribution_check.h"
#include "tools/ewens_tab.h"

namespace ovelt {

// Each report's lines end with CR LF.
[[nodiscard]] std::string BinomialReportText(const BinomialInput& input,
                                             const DiscreteProbabilities& result);
[[nodiscard]] std::string HypergeometricReportText(const HypergeometricInput& input,
                                                   const DiscreteProbabilities& result);
[[nodiscard]] std::string PoissonReportText(const PoissonInput& input,
                                            const DiscreteProbabilities& result);
[[nodiscard]] std::string EwensReportText(const EwensInput& input, const EwensResult& result);

}  // namespace ovelt
