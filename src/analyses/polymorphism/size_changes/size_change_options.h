#pragma once
// Options of "Population Size Changes": the region and sequence set, what is compared (the
// mismatch distribution, the frequency spectrum or Sn(t)), and the model of the expected values.
// Theta initial, theta final and tau left at kFromData are taken from the data when the run
// has counted it (see ResolveSizeChangeParameters).

#include <cstdint>
#include <optional>
#include <string>

#include "core/command_options.h"

namespace ovelt {

// `AnalysisKind`.
inline constexpr int32_t kMismatchKind = 11;      // pairwise differences
inline constexpr int32_t kMismatchKindToo = 12;   // pairwise differences
inline constexpr int32_t kSpectrumKind = 21;      // frequency spectrum, "Segregating Sites"
inline constexpr int32_t kSegregatingKind = 22;   // Sn(t)

// `Model`.
inline constexpr int16_t kConstantSize = 1;
inline constexpr int16_t kGrowthDecline = 2;

inline constexpr double kFromData = -1.0;
inline constexpr double kMaxTheta = 100000.0;
inline constexpr double kThetaTauLimit = 200.0;

inline const char* const kThetaInitialTooBig = "The maximum value of Theta initial must be 100000";
inline const char* const kThetaFinalTooBig = "The maximum value of Theta final must be 100000";
inline const char* const kThetaFinalNotPositive = "The value of Theta final must be higher than 0";
inline const char* const kThetaTauTooBig =
    "The minimum value of (theta final, tau) must be lower than 200";

struct SizeChangeOptions {
  int32_t RegionFrom = 1, RegionTo = 0;
  int16_t SelSet1 = 0;
  int32_t AnalysisKind = kMismatchKind;
  int16_t Model = kConstantSize;
  double ThetaInitial = kFromData;
  double ThetaFinal = kFromData;
  double Tau = kFromData;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use (default: all)"});
    v.Integer(AnalysisKind,
              {"kind", "(Mismatch Distribution)",
               "11 or 12 pairwise differences (Mismatch Distribution), 21 frequency spectrum "
               "(Segregating Sites), 22 Sn(t)"},
              kMismatchKind, kSegregatingKind);
    v.Choice(Model,
             {"model", "Model for Expected Values", "Model for the expected values"},
             {"Constant Population Size", "Population Growth-Decline"}, kConstantSize);
    v.Real(ThetaInitial,
           {"theta-initial", "Theta initial", "Theta before the change (-1: from the data)",
            kThetaInitialTooBig},
           -1e300, kMaxTheta);
    v.Real(ThetaFinal,
           {"theta-final", "Theta final", "Theta after the change (-1: from the data)",
            kThetaFinalTooBig},
           -1e300, kMaxTheta);
    v.Real(Tau, {"tau", "Tau = 2ut", "Time of the change in mutational units (-1: from the data)"},
           -1e300, 1e300);
  }
};

// The values the expected distributions use, after those left to the data were filled in.
struct SizeChangeParameters {
  double ThetaInitial = 0.0;
  double ThetaFinal = 0.0;
  double Tau = 0.0;
};

// The dialog's checks of the values in use, in the dialog's order; the first failure's words.
[[nodiscard]] std::optional<std::string> ValidateSizeChange(const SizeChangeOptions& options,
                                                            const SizeChangeParameters& values);

}  // namespace ovelt
