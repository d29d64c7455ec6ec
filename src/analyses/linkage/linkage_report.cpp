#include "analyses/linkage/linkage_report.h"

#include <array>
#include <cmath>

#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

constexpr const char* kSummaryMask = "0.0000";

std::string Line(const std::string& text) { return text + kCrLf; }

std::string TestLines(const std::string& label, int64_t significant, int64_t bonferroni) {
  return Line(label + StrNum(significant)) +
         Line("    Number of significant comparisons using the Bonferroni procedure: " +
              StrNum(bonferroni));
}

}  // namespace

std::string RegressionLine(const std::string& label, const DistanceRegression& line) {
  const double a = line.Intercept.value_or(0.0);
  const double b = line.Slope.value_or(0.0);
  const std::string slope =
      b < 0.0 ? " - " + Format(std::fabs(b), kSummaryMask) : " + " + Format(b, kSummaryMask);
  return label + Format(a, kSummaryMask) + slope + "X" + "   (" + StrNum(line.Points) +
         " points)";
}

std::string LinkageReportBody(const LinkageResult& r) {
  std::string t = Line(" Number of polymorphic sites analyzed: " + StrNum(r.SitesAnalysed));
  t += Line(r.AllSites ? " All Polymorphic sites were considered"
                       : " Only Parsimony Informative Polymorphic sites were considered");
  if (r.ThreeOrFourVariants)
    t += Line(" Sites segregating for three or four nucleotides were not considered");
  t += Line(" Number of pairwise comparisons: " + StrNum(r.PairCount));
  if (r.Fisher)
    t += TestLines(" Number of significant pairwise comparisons by Fisher's exact test: ",
                   r.FisherSignificant, r.FisherBonferroni);
  if (r.ChiSquare)
    t += TestLines(" Number of significant pairwise comparisons by chi-square test: ",
                   r.ChiSquareSignificant, r.ChiSquareBonferroni);
  t += kCrLf;
  const LinkageSummaries& z = r.Summaries;
  t += Line(" Value of ZnS (Kelly 1997): " + Format(z.ZnS, kSummaryMask));
  t += Line(" Value of Za (Valdor et al. 2001): " + Format(z.Za, kSummaryMask));
  t += Line(" Value of ZZ (Valdor et al. 2001): " + Format(z.ZZ, kSummaryMask));
  t += Line(" Value of Wall's B: " + Format(z.WallB, kSummaryMask));
  t += Line(" Value of Wall's Q: " + Format(z.WallQ, kSummaryMask));
  if (r.Tests() > 0) {
    t += kCrLf;
    t += Line(" Table.   * 0.01<P<0.05;  ** 0.001<P<0.01;  *** P<0.001");
    t += Line("     B, significant by the Bonferroni procedure");
  }
  t += kCrLf;
  t += Line(" ===== Regression Equation:  Y = a + bX  (X measured in kb) =====");
  static constexpr std::array<const char*, 4> kLabels = {
      "  |D| values:  Y = ", "  |D'| values:  Y = ", "  |D'|* values:  Y = ",
      "  r^2 values:  Y = "};
  for (std::size_t i = 0; i < r.Regressions.size() && i < kLabels.size(); ++i) {
    if (r.Regressions[i].Intercept) t += Line(RegressionLine(kLabels[i], r.Regressions[i]));
  }
  return t;
}

}  // namespace ovelt
