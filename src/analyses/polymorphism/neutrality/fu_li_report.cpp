#include "analyses/polymorphism/neutrality/fu_li_report.h"

#include "analyses/polymorphism/neutrality/neutrality_failure.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/neutrality/tajima_report.h"
#include "core/line_end.h"
#include "analyses/polymorphism/common/fs_text.h"
#include "output/format_mask.h"
#include "stats/significance_words.h"

namespace ovelt {
namespace {

std::string Line(const std::string& label, const std::string& value) {
  return label + value + kCrLf;
}

std::string Words(const std::string& mark) {
  return SignificanceWords(mark, MarkFamily::kFuLi);
}

bool AnyNotDetermined(const FuLiWindows& windows) {
  for (const FuLiWindow& row : windows.Rows) {
    if (!row.DStar || row.DStarMark == "n.d.") return true;
  }
  return false;
}

}  // namespace

std::string FsLines(const FsResult& fs, int32_t haplotypes) {
  std::string t;
  t += Line(" Fu's Fs statistic: ", FsText(fs.Fs, "0.000"));
  t += Line(" Strobeck's S statistic: ", Format(fs.StrobeckS, "0.000"));
  t += Line("    (Probability that NHap <= " + StrNum(haplotypes), ")");
  t += Line(" Probability that [NHap = " + StrNum(haplotypes) + "]: ", Format(fs.PEqual, "0.000"));
  return t;
}

std::string FuLiReportBody(const FuLiTestResult& r) {
  const NeutralityTotals& c = r.Totals;
  if (c.SegSites == 0) return std::string(kNoPolymorphismsLine) + kCrLf;
  std::string t;
  t += Line(" Number of polymorphic (segregating) sites, S: ", StrNum(c.SegSites));
  t += Line(" Total number of mutations, Eta: ", Format(c.TotalMutations, "0"));
  t += Line(r.UseMutations ? " Total number of singleton mutations, Eta(s): "
                           : " Total number of singleton segregating sites, Eta(s): ",
            StrNum(c.EtaS));
  t += kCrLf;
  t += Line(" Average number of pairwise nucleotide differences, k: ", Format(c.K, "0.000"));
  t += Line(" Nucleotide diversity, Pi: ", Format(r.Pi, "0.00000"));
  t += kCrLf;
  t += Line(" Theta estimated from k: ", Format(r.ThetaK, "0.000"));
  t += Line(" Theta estimated from Eta(s): ", Format(r.ThetaEtaS, "0.000"));
  t += Line(r.UseMutations ? " Theta estimated from Eta: " : " Theta estimated from S: ",
            Format(r.ThetaEta, "0.000"));
  t += kCrLf;
  t += Line(" Fu and Li's D* test statistic: ", Format(r.DStar.value_or(0.0), "0.00000"));
  t += Line("     Statistical significance: ", Words(r.DStarMark));
  t += Line(" Fu and Li's F* test statistic: ", Format(r.FStar.value_or(0.0), "0.00000"));
  t += Line("     Statistical significance: ", Words(r.FStarMark));
  t += kCrLf;
  t += CalculationLine(r.UseMutations) + kCrLf;
  if (r.Haplotypes) {
    t += Line(" Number of Haplotypes, h: ", StrNum(r.Haplotypes->Haplotypes));
    t += Line(" Haplotype (gene) diversity, Hd: ", Format(r.Haplotypes->Hd, "0.000"));
    t += Line("    Variance of Haplotype diversity: ", Format(r.Haplotypes->VarHd, "0.00000"));
    t += kCrLf;
    if (r.Fs) t += FsLines(*r.Fs, r.Haplotypes->Haplotypes);
  }
  if (r.Windows) {
    t += SlidingBlock(r.Windows->Geometry);
    t += FuLiWindowLegend(AnyNotDetermined(*r.Windows)) + kCrLf;
  }
  return t;
}

}  // namespace ovelt
