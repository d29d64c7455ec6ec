#include "analyses/polymorphism/neutrality/fu_li_outgroup_report.h"

#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/neutrality/tajima_report.h"
#include "core/line_end.h"
#include "output/format_mask.h"
#include "stats/significance_words.h"

namespace ovelt {
namespace {

std::string Line(const std::string& label, const std::string& value) {
  return label + value + kCrLf;
}

std::string SetName(const Selection& sel, int16_t set) {
  if (set < 1 || set > sel.data().SetCount()) return "";
  return sel.data().SequenceSets[static_cast<size_t>(set)].nombre();
}

std::string Words(const std::string& mark) {
  return SignificanceWords(mark, MarkFamily::kFuLi);
}

// A statistic that is not determined prints as "n.d.".
std::string Statistic(const std::optional<double>& value) {
  return value ? Format(*value, "0.00000") : "n.d.";
}

bool AnyNotDetermined(const FuLiOutgroupWindows& windows) {
  for (const FuLiOutgroupWindow& row : windows.Rows) {
    if (!row.D || row.DMark == "n.d.") return true;
  }
  return false;
}

}  // namespace

std::string FuLiOutgroupHead(const Selection& sel, const FuLiOutgroupResult& r) {
  std::string t = kCrLf;
  t += Line(" Input Data File: ", sel.data().FilePath);
  t += Line(" Selected region: " + StrNum(r.RegionFrom) + "-" + StrNum(r.RegionTo),
            "     Number of sites: " + StrNum(r.RegionTo - r.RegionFrom + 1));
  t += Line(" Total sites (excluding alignment gaps): ", StrNum(r.Totals.NetSites));
  if (sel.data().GapsInSets == 2)
    t += std::string(" Sites with alignment gaps in the complete data file have been excluded") +
         kCrLf;
  t += Line(" Intraspecific Data: ", SetName(sel, sel.SelSet1));
  t += Line("    Number of sequences: ", StrNum(r.Sequences));
  t += Line(" Interspecific Data: ", SetName(sel, sel.SelSet2));
  for (int32_t seq = 1; seq <= r.OutgroupSequences; ++seq) {
    const auto s = static_cast<size_t>(seq);
    t += Line("       Sequence used: ", s < sel.SelNames2.size() ? sel.SelNames2[s] : "");
  }
  t += std::string(" =====  Intraspecific Data  =====") + kCrLf;
  return t;
}

std::string FuLiOutgroupReportBody(const FuLiOutgroupResult& r) {
  const NeutralityTotals& c = r.Totals;
  std::string t;
  t += Line(" Number of positions with ambiguous information in outgroup: ",
            StrNum(static_cast<int64_t>(r.AmbiguousSites.size())));
  if (!r.AmbiguousSites.empty()) {
    std::string sites;
    for (const int32_t site : r.AmbiguousSites) sites += (sites.empty() ? "" : " ") + StrNum(site);
    t += Line("   Site Positions: ", sites);
  }
  t += Line(" Number of segregating sites, S: ", StrNum(c.SegSites));
  t += Line(" Total number of mutations, Eta: ", Format(c.TotalMutations, "0"));
  if (r.UseMutations) {
    t += Line(" Total number of mutations in external branches, Eta(e): ", StrNum(c.EtaE));
    t += Line(" Total number of singleton mutations, Eta(s): ", StrNum(c.EtaS));
  } else {
    t += Line(" Total number of segregating sites in external branches, Eta(e): ", StrNum(c.EtaE));
    t += Line(" Total number of singleton segregating sites, Eta(s): ", StrNum(c.EtaS));
  }
  t += kCrLf;
  t += Line(" Average number of pairwise nucleotide differences, k: ", Format(c.K, "0.000"));
  t += Line(" Nucleotide diversity, Pi: ", Format(r.Pi, "0.00000"));
  t += kCrLf;
  t += Line(" Theta estimated from k: ", Format(r.ThetaK, "0.000"));
  t += Line(" Theta estimated from Eta(e): ", Format(r.ThetaEtaE, "0.000"));
  t += Line(r.UseMutations ? " Theta estimated from Eta: " : " Theta estimated from S: ",
            Format(r.ThetaEta, "0.000"));
  t += kCrLf;
  t += Line(" Fu and Li's D test statistic, FL-D: ", Statistic(r.D));
  t += Line("     Statistical significance: ", Words(r.DMark));
  t += Line(" Fu and Li's F test statistic, FL-F: ", Statistic(r.F));
  t += Line("     Statistical significance: ", Words(r.FMark));
  t += Line(" Fay and Wu's H test statistic, FW-H: ", Format(r.FayWu.H, "0.00000"));
  t += kCrLf;
  t += CalculationLine(r.UseMutations) + kCrLf;
  if (r.Windows) {
    t += SlidingBlock(r.Windows->Geometry);
    t += FuLiWindowLegend(AnyNotDetermined(*r.Windows)) + kCrLf;
  }
  return t;
}

}  // namespace ovelt
