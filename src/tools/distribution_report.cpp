#include "tools/distribution_report.h"

#include <cmath>

#include "output/format_mask.h"
#include "output/report_text.h"

namespace ovelt {
namespace {

std::string Line(const std::string& text) { return text + kCrLf; }

std::string InputHead() { return Line(" ====== Input Data ======"); }
std::string OutputHead() { return Line(" ======== Output ========"); }

// The four lines of the classical distributions.
std::string ProbabilityLines(int32_t k, const DiscreteProbabilities& r) {
  std::string text;
  text += Line(" P [X = " + StrNum(k) + "] = " + Format(r.PEqual, "0.000000"));
  text += Line(" P [X < " + StrNum(k) + "] = " + Format(r.PLess, "0.000000"));
  text += Line(" Expected value, E[X] = " + Format(r.Mean, "0.000"));
  text += Line(" Variance, var [X] = " + Format(r.Variance, "0.000") +
               "   (SD = " + Format(std::sqrt(r.Variance), "0.000") + ")");
  return text;
}

}  // namespace

std::string BinomialReportText(const BinomialInput& input, const DiscreteProbabilities& result) {
  return InputHead() + Line(" Value of p: " + StrNum(input.P)) +
         Line(" Value of n: " + StrNum(input.N)) + Line(" Value of k: " + StrNum(input.K)) +
         OutputHead() + ProbabilityLines(input.K, result);
}

std::string HypergeometricReportText(const HypergeometricInput& input,
                                     const DiscreteProbabilities& result) {
  return InputHead() + Line(" Population Size: " + StrNum(input.Population)) +
         Line(" Successes in the Population: " + StrNum(input.Successes)) +
         Line(" Value of n: " + StrNum(input.N)) + Line(" Value of k: " + StrNum(input.K)) +
         OutputHead() + ProbabilityLines(input.K, result);
}

std::string PoissonReportText(const PoissonInput& input, const DiscreteProbabilities& result) {
  return InputHead() + Line(" Value of lambda: " + StrNum(input.Lambda)) +
         Line(" Value of k: " + StrNum(input.K)) + OutputHead() + ProbabilityLines(input.K, result);
}

std::string EwensReportText(const EwensInput& input, const EwensResult& result) {
  const std::string h = StrNum(input.NHap);
  // An Fs out of range prints as the mark 1234567.
  const std::string fs = result.Fs ? Format(*result.Fs, "0.0000") : std::string("1234567");
  return InputHead() + Line(" Sample Size: " + StrNum(input.SampleSize)) +
         Line(" NHap, Number of Haplotypes: " + h) +
         Line(" Value of Theta: " + StrNum(input.Theta)) + OutputHead() +
         Line(" P [NHap = " + h + "] = " + Format(result.PEqual, "0.0000")) +
         Line(" Strobeck's S statistic: " + Format(result.StrobeckS, "0.0000") +
              "   (P [NHap <= " + h + "])") +
         Line(" Expected value, E[NHap] = " + Format(result.Expected, "0.0000")) +
         Line(" Fu's Fs statistic: " + fs);
}

}  // namespace ovelt
