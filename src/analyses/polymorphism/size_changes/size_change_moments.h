#pragma once
// Moment estimates of a sudden expansion from the mismatch distribution, letting theta final
// be infinite (Rogers and Harpending 1992; Rogers 1995), from the mean k and the variance VarK
// of the pairwise differences:
//   tau = Sqr(VarK - k) when VarK is above k, else 0;  theta initial = k - tau, 0 if negative;
//   theta final = 1000, which stands for infinite.
// VarK at or below k (as with n = 2, where VarK is 0) gives tau 0 and theta initial k.

namespace ovelt {

inline constexpr double kInfiniteThetaFinal = 1000.0;

struct MomentEstimates {
  double ThetaInitial = 0.0;
  double ThetaFinal = kInfiniteThetaFinal;
  double Tau = 0.0;

  // Theta final is not estimated (it stands for infinite): left out.
  template <class V>
  void Visit(V& v) const {
    v.Number("theta_initial_estimate", ThetaInitial);
    v.Number("tau_estimate", Tau);
  }
};

[[nodiscard]] MomentEstimates EstimateByMoments(double k, double var_k);

}  // namespace ovelt
