#pragma once
// The computation of "Population Size Changes", in the order of a run:
//   1. ObserveSizeChange: the mismatch distribution (Rogers and Harpending 1992), VarK, the
//      observed C.V. (1 + 1 / (4 n)) Sqr(VarK) / k, raggedness, MAE, R2, the folded spectrum,
//      the expected variances of k and the moment estimates;
//   2. ResolveSizeChangeParameters: values left to the data are filled in (constant size:
//      theta = k; growth-decline: the moment estimates, theta final 1000);
//   3. ExpectSizeChange: the table of observed and expected values and Sn(t).
// k of 0 (no polymorphism) stops a run after step 1; the expected values are not defined.

#include <cstdint>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/size_changes/size_change_result.h"
#include "core/selection.h"

namespace ovelt {

// Sn(t) tables run from 0 in steps of this many N generations ...
inline constexpr double kTimeStep = 0.1;
// ... to twice the time since the change, and at least this far.
inline constexpr double kShortestTimeSpan = 5.0;

// Over from..to of the first selection. The gauge rises to 100.
[[nodiscard]] SizeChangeResult ObserveSizeChange(const Selection& sel, int32_t from, int32_t to,
                                                 const PolyGauge& gauge = {});

[[nodiscard]] SizeChangeParameters ResolveSizeChangeParameters(const SizeChangeOptions& options,
                                                               const SizeChangeResult& observed);

// Fills the parameters in use, Sn(t) and the table. Throws ExpansionError.
void ExpectSizeChange(SizeChangeResult& result, const SizeChangeOptions& options,
                      const SizeChangeParameters& values);

// The expected share of pairs with i differences under the model in use.
[[nodiscard]] double ExpectedMismatchShare(int16_t model, const SizeChangeParameters& values,
                                           int32_t i);

}  // namespace ovelt
