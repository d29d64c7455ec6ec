#pragma once
// The boxes of "Discrete Distributions" (Form20), one tab per distribution, in the window's
// order. The boxes hold text as typed (a decimal comma is read as a point); the checks of
// distribution_check.h read them.

#include <array>
#include <cstdint>
#include <string>

#include "core/command_options.h"

namespace ovelt {

// The code of the result in the table of titles (the command is number 42).
inline constexpr int16_t kDistributionsResultCode = 41;
inline constexpr const char* kDistributionsCaption = "Discrete Distributions";

enum class DistributionTab : int16_t {
  kBinomial = 0,
  kHypergeometric = 1,
  kPoisson = 2,
  kEwens = 3,
};

inline constexpr std::array<const char*, 4> kDistributionTabCaptions = {
    "Binomial Distribution", "Hypergeometric Distribution", "Poisson Distribution",
    "Ewens Distribution"};

// P[X = k] among n trials of probability p.
struct BinomialOptions {
  std::string P;
  std::string N;
  std::string K;

  template <class V>
  void Visit(V& v) {
    v.Text(P, {"p", "Value of  p:", "Probability of a success in one trial"});
    v.Text(N, {"n", "Value of  n:", "Number of trials"});
    v.Text(K, {"k", "Value of  k:", "Number of successes"});
  }
};

// P[X = k] for a sample of n drawn without replacement from a population of `Population`
// elements, `Successes` of which are of the kind counted.
struct HypergeometricOptions {
  std::string Population;
  std::string Successes;
  std::string N;
  std::string K;

  template <class V>
  void Visit(V& v) {
    v.Text(Population, {"population", "Population Size:", "Number of elements in the population"});
    v.Text(Successes, {"successes", "Successes in the Population:",
                       "Elements of the counted kind in the population"});
    v.Text(N, {"n", "Value of  n:", "Sample size, drawn without replacement"});
    v.Text(K, {"k", "Value of  k:", "Elements of the counted kind in the sample"});
  }
};

// P[X = k] for a Poisson variable of mean lambda. The window shows lambda as the Greek letter.
struct PoissonOptions {
  std::string Lambda;
  std::string K;

  template <class V>
  void Visit(V& v) {
    v.Text(Lambda, {"lambda", "Value of  \u03bb:", "Mean of the distribution"});
    v.Text(K, {"k", "Value of  k:", "Number of events"});
  }
};

// The number of haplotypes of a sample under the infinite-alleles model.
struct EwensOptions {
  std::string SampleSize;
  std::string NHap;
  std::string Theta;

  template <class V>
  void Visit(V& v) {
    v.Text(SampleSize, {"sample-size", "Sample Size:", "Number of sequences (2 to 500)"});
    v.Text(NHap, {"nhap", "NHap, Number of Haplotypes:", "Number of haplotypes"});
    v.Text(Theta, {"theta", "Value of Theta:", "Theta per sequence"});
  }
};

// Every box of the window.
struct DistributionBoxes {
  BinomialOptions Binomial;
  HypergeometricOptions Hypergeometric;
  PoissonOptions Poisson;
  EwensOptions Ewens;
};

// The values the window opens with.
[[nodiscard]] DistributionBoxes F20DefectValues();

}  // namespace ovelt
