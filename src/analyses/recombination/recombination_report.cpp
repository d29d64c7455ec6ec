#include "analyses/recombination/recombination_report.h"

#include "analyses/recombination/c_grid_search.h"
#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string Line(const std::string& label, const std::string& value) {
  return label + value + kCrLf;
}

const std::string kTenBlanks(10, ' ');
const std::string kOnlyFirst = "       (Only the first 500 have been displayed)";

}  // namespace

std::string SitePairLines(const std::vector<SiteInterval>& pairs) {
  std::string t;
  const std::size_t shown = pairs.size() < kRmDisplayLimit ? pairs.size() : kRmDisplayLimit;
  for (std::size_t i = 0; i < shown; ++i) {
    if (i % 5 == 0) t += kTenBlanks;
    t += "(" + StrNum(pairs[i].Low) + "," + StrNum(pairs[i].High) + ")  ";
    if (i % 5 == 4 || i + 1 == shown) t += kCrLf;
  }
  return t;
}

std::string OtherVariantLines(const std::vector<int32_t>& sites) {
  if (sites.empty()) return "";
  std::string t = "    Sites segregating for three or four nucleotides were not considered";
  t += kCrLf;
  if (sites.size() == 1) return t + Line("          Site position: ", StrNum(sites[0]));
  t += "          Site positions: ";
  for (std::size_t i = 0; i < sites.size(); ++i) {
    t += StrNum(sites[i]);
    if (i + 1 == sites.size()) break;
    t += (i + 1) % 15 == 0 ? kCrLf + kTenBlanks : std::string(" ");
  }
  return t + kCrLf;
}

std::string HudsonReportText(const RecombinationResult& r) {
  const HudsonEstimate& h = r.Hudson;
  std::string t = Line(" Number of polymorphic (segregating) sites, S: ", StrNum(r.SegSites));
  t += kCrLf;
  t += Line(" Estimate of the recombination parameter, R (or C) (Hudson 1987)", "");
  t += Line("    Variance of the sample distribution of Kij, Sk^2: ", Format(h.Sk2, "0.000"));
  t += Line("    Estimate of Theta, per gene: ", Format(h.Theta, "0.000"));
  t += Line("    Value of the function g(C,n): ", Format(h.G, "0.0000"));
  if (h.AboveLimit) {
    t += Line("    Estimate of R, per gene:   Greater than 10000", "");
  } else {
    t += Line("    Estimate of R, per gene: ", Format(h.C, CMask(h.C)));
    if (h.RAdjacent)
      t += Line("    Estimate of R, between adjacent sites: ",
                Format(*h.RAdjacent, "0.0000") + "   ");
  }
  t += Line("    Average nucleotide distance between the most distant sites: ",
            Format(h.NetDistance, "0.00"));
  return t;
}

std::string RmReportText(const RmEstimate& rm) {
  std::string t = kCrLf;
  t += Line(" Minimum number of recombination events (Hudson and Kaplan 1985)", "");
  if (rm.Status != 0)
    return t + Line("    Not computed. There are too many polymorphic sites", "");
  t += OtherVariantLines(rm.OtherVariants);
  t += Line("    Number of pairwise comparisons analyzed: ", StrNum(rm.PairsCompared));
  t += Line("    Number of pairs of sites with four gametic types: ",
            StrNum(static_cast<int64_t>(rm.FourGametePairs.size())));
  if (rm.FourGametePairs.size() >= kRmDisplayLimit) t += Line(kOnlyFirst, "");
  t += SitePairLines(rm.FourGametePairs);
  t += Line("    Minimum number of recombination events, Rm: ", StrNum(rm.Rm));
  if (rm.Rm > 0) {
    t += Line("    Recombination has been detected between sites: ", "");
    if (rm.Intervals.size() >= kRmDisplayLimit) t += Line(kOnlyFirst, "");
    t += SitePairLines(rm.Intervals);
  }
  return t;
}

std::string RecombinationReportBody(const RecombinationResult& r) {
  return HudsonReportText(r) + RmReportText(r.Rm);
}

}  // namespace ovelt
