#include "analyses/polymorphism/size_changes/size_change_options.h"

#include <algorithm>

#include "core/region_check.h"

namespace ovelt {

std::optional<std::string> ValidateSizeChange(const SizeChangeOptions& options,
                                              const SizeChangeParameters& values) {
  const int32_t kind = options.AnalysisKind;
  if (kind != kMismatchKind && kind != kMismatchKindToo && kind != kSpectrumKind &&
      kind != kSegregatingKind)
    return kInvalidSelection;
  if (options.Model != kConstantSize && options.Model != kGrowthDecline) return kInvalidSelection;
  if (values.ThetaInitial > kMaxTheta) return std::string(kThetaInitialTooBig);
  if (values.ThetaInitial < 0.0) return kInvalidSelection;
  if (options.Model == kConstantSize) return std::nullopt;
  if (values.ThetaFinal > kMaxTheta) return std::string(kThetaFinalTooBig);
  if (values.ThetaFinal <= 0.0) return std::string(kThetaFinalNotPositive);
  if (values.Tau < 0.0) return kInvalidSelection;
  if (std::min(values.ThetaFinal, values.Tau) >= kThetaTauLimit)
    return std::string(kThetaTauTooBig);
  return std::nullopt;
}

}  // namespace ovelt
