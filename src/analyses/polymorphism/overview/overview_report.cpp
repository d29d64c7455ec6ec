#include "analyses/polymorphism/overview/overview_report.h"

#include <cmath>

#include "core/line_end.h"
#include "analyses/polymorphism/common/fs_text.h"
#include "output/format_mask.h"
#include "stats/significance_words.h"

namespace ovelt {

namespace {

constexpr int32_t kManyHaplotypes = 100;

std::string Line(const std::string& text) {
  return text + kCrLf;
}

std::string GcLine(const std::string& label, const std::optional<GcShare>& share) {
  if (!share) return Line(label + "n.a.");
  return Line(label + Format(share->Content, "0.000") + "    (" +
              Format(static_cast<double>(share->Sites), "0.00") + " sites)");
}

std::string TestLines(const std::string& label, const NeutralityValue& v, MarkFamily family) {
  if (!v.Value)
    return Line(label + "n.d.") +
           Line("     Statistical significance: " + SignificanceWords("n.d.", family));
  return Line(label + Format(*v.Value, "0.00000")) +
         Line("     Statistical significance: " + SignificanceWords(v.Mark, family));
}

}  // namespace

std::string OverviewReportText(const OverviewStats& o) {
  std::string text;
  text += Line(" Number of variable sites, S: " + StrNum(o.SegSites));
  text += Line(" Total number of mutations, Eta: " + Format(o.Mutations, "0"));
  text += Line(" ===================== G+C content ===================== ");
  if (!o.Changes) {
    text += GcLine(" G+C content, G+C: ", o.Gc.Total);
  } else {
    text += GcLine(" G+C content at noncoding positions, G+Cn: ", o.Gc.NonCoding);
    text += GcLine(" G+C content at coding positions, G+Cc: ", o.Gc.Coding);
    text += GcLine(" G+C content -Total-, G+C: ", o.Gc.Total);
  }

  text += Line(" ============ Haplotype/Nucleotide Diversity ============ ");
  text += Line(" Number of Haplotypes, h: " + StrNum(o.Haplotypes));
  if (o.Hd) {
    const bool many = o.Haplotypes >= kManyHaplotypes;
    const double var_hd = o.VarHd.value_or(0.0);
    text += Line(" Haplotype (gene) diversity, Hd: " + Format(*o.Hd, many ? "0.0000" : "0.000"));
    text += Line("    Variance of Haplotype diversity: " +
                 Format(var_hd, many ? "0.0000000" : "0.00000"));
    text += Line("       Standard Deviation of Haplotype diversity: " +
                 Format(std::sqrt(var_hd), many ? "0.0000" : "0.000"));
  } else {
    text += Line(" Haplotype (gene) diversity, Hd: n.d.");
  }
  // Pi, k and theta that cannot be determined print as 0.
  text += Line(" Nucleotide diversity (per site), Pi: " + Format(o.Pi.value_or(0.0), "0.00000"));
  if (o.VarPi) {
    text += Line("    Sampling variance of Pi: " + Format(*o.VarPi, "0.0000000"));
    text += Line("       Standard deviation of Pi: " + Format(std::sqrt(*o.VarPi), "0.00000"));
  }
  text += Line(" Average number of nucleotide differences, k: " +
               Format(o.K.value_or(0.0), "0.000"));
  const std::string per_site = Format(o.ThetaPerSite.value_or(0.0), "0.00000");
  const std::string per_sequence = Format(o.ThetaPerSequence.value_or(0.0), "0.00000");
  if (o.UseMutations) {
    text += Line(" Theta (per site) from Eta: " + per_site);
    text += Line(" Theta (per sequence) from Eta: " + per_sequence);
  } else {
    text += Line(" Theta (per site) from S, Theta-W: " + per_site);
    text += Line(" Theta (per sequence) from S, Theta-W: " + per_sequence);
  }

  text += Line(" ================== Neutrality Tests ================== ");
  const bool polymorphic = o.SegSites > 0;
  if (!o.TestsComputed) {
    text += Line(" Four or more sequences are need to compute Tajima's and Fu and Li's statistics");
  } else if (polymorphic) {
    text += TestLines(" Tajima's D: ", o.TajimaD, MarkFamily::kTajima);
    text += TestLines(" Fu and Li's D* test statistic: ", o.FuLiDStar, MarkFamily::kFuLi);
    text += TestLines(" Fu and Li's F* test statistic: ", o.FuLiFStar, MarkFamily::kFuLi);
  }
  if (o.Fs) {
    text += Line(" Fu's Fs statistic: " + FsText(o.Fs->Fs, "0.000"));
    text += Line(" Strobeck's S statistic: " + Format(o.Fs->StrobeckS, "0.000"));
    text += Line("    (Probability that NHap <= " + StrNum(o.Haplotypes) + ")");
    text += Line(" Probability that [NHap = " + StrNum(o.Haplotypes) +
                 "]: " + Format(o.Fs->PEqual, "0.000"));
  }
  if (!polymorphic) text += Line(" No polymorphisms in the selected region !!!");
  text += Line(o.UseMutations ? " Calculation using the total number of mutations"
                              : " Calculation using the total number of segregating sites");
  return text;
}

}  // namespace ovelt
