#include "analyses/polymorphism/diversity/dna_polymorphism_report.h"

#include <cmath>

#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string Line(const std::string& label, const std::string& value) {
  return label + value + kCrLf;
}

}  // namespace

std::string PolymorphismFirstBlock(const PolyStats& stats,
                                   const std::optional<HaplotypeStats>& haplotypes) {
  std::string text;
  text += Line(" Number of polymorphic (segregating) sites, S: ", StrNum(stats.SegSites));
  text += Line(" Total number of mutations, Eta: ", Format(stats.Mutations, "0"));
  if (!haplotypes) return text;
  // Many haplotypes need a finer Hd to tell samples apart.
  const bool many = haplotypes->Haplotypes >= 100;
  const char* hd_mask = many ? "0.0000" : "0.000";
  const char* var_mask = many ? "0.0000000" : "0.00000";
  text += kCrLf;
  text += Line(" Number of Haplotypes, h: ", StrNum(haplotypes->Haplotypes));
  text += Line(" Haplotype (gene) diversity, Hd: ", Format(haplotypes->Hd, hd_mask));
  text += Line("    Variance of Haplotype diversity: ", Format(haplotypes->VarHd, var_mask));
  text += Line("       Standard Deviation of Haplotype diversity: ",
               Format(std::sqrt(haplotypes->VarHd), hd_mask));
  text += kCrLf;
  text += Line(" Nucleotide diversity, Pi: ", Format(stats.PiValue, "0.00000"));
  return text;
}

std::string SamplingVarianceLines(const PiSamplingVariance& v) {
  return Line("    Sampling variance of Pi: ", Format(v.Variance, "0.0000000")) +
         Line("       Standard deviation of Pi: ", Format(v.StdDev, "0.00000"));
}

std::string JukesCantorLine(double pi_jc) {
  return Line(" Nucleotide diversity (Jukes and Cantor), Pi(JC): ", Format(pi_jc, "0.00000"));
}

std::string ThetaVarianceBlock(const ThetaVariances& v) {
  std::string t;
  t += Line(" Theta (per site) from Eta: ", Format(v.ThetaEta, "0.00000"));
  t += kCrLf;
  t += Line(" Theta (per site) from S, Theta-W: ", Format(v.ThetaW, "0.00000"));
  t += Line("    Variance of theta (no recombination): ", Format(v.VarThetaNoRec, "0.0000000"));
  t += Line("       Standard deviation of theta (no recombination): ",
            Format(std::sqrt(v.VarThetaNoRec), "0.00000"));
  t += Line("    Variance of theta (free recombination): ", Format(v.VarThetaFreeRec, "0.0000000"));
  t += Line("       Standard deviation of theta (free recombination): ",
            Format(std::sqrt(v.VarThetaFreeRec), "0.00000"));
  t += kCrLf;
  t += Line(" Finite Sites Model ", "");
  t += Line("    Theta (per site) from Pi: ", Format(v.FiniteFromPi, "0.00000"));
  t += Line("    Theta (per site) from S: ", Format(v.FiniteFromS, "0.00000"));
  t += Line("    Theta (per site) from Eta: ", Format(v.FiniteFromEta, "0.00000"));
  t += kCrLf;
  t += Line(" Average number of nucleotide differences, k: ", Format(v.K, "0.000"));
  t += Line("    Stochastic variance of k (no recombination), Vst(k): ",
            Format(v.StochasticNoRec, "0.000"));
  t += Line("    Sampling variance of k (no recombination), Vs(k): ",
            Format(v.SamplingNoRec, "0.000"));
  t += Line("       Total variance of k (no recombination), V(k): ", Format(v.TotalNoRec, "0.000"));
  t += Line("    Stochastic variance of k (free recombination), Vst(k): ",
            Format(v.StochasticFreeRec, "0.000"));
  t += Line("    Sampling variance of k (free recombination), Vs(k): ",
            Format(v.SamplingFreeRec, "0.000"));
  t += Line("       Total variance of k (free recombination), V(k): ",
            Format(v.TotalFreeRec, "0.000"));
  t += kCrLf;
  t += Line(" Theta (per sequence) from S, Theta-W: ", Format(v.ThetaWSequence, "0.000"));
  t += Line("    Variance of theta (no recombination): ", Format(v.VnSequence, "0.000"));
  t += Line("    Variance of theta (free recombination): ", Format(v.VfSequence, "0.000"));
  return t;
}

std::string PairwiseDeletionText(const PairwiseDeletion& r, int16_t gaps_in_sets) {
  std::string t;
  t += Line(" Pairwise Deletion option:", "");
  t += Line(" Sites with alignment gaps or missing data were considered", "");
  if (gaps_in_sets == 2) {
    t += Line(" Sites with alignment gaps or missing data in excluded sequences", "");
    t += Line("    were completly excluded", "");
  }
  t += kCrLf;
  t += Line(" Analysis in Pairwise Comparisons", "");
  t += Line(" Gaps/missing information were excluded ONLY in pairwise comparisons", "");
  t += Line("   Number of pairwise comparisons: ", StrNum(r.Comparisons));
  t += Line("   Average number of sites analyzed: ", Format(r.AverageSites.value_or(0.0), "0.00"));
  t += Line("   Average number of differences: ",
            Format(r.AverageDifferences.value_or(0.0), "0.000"));
  t += Line("   Nucleotide diversity, Pi: ", Format(r.PiPairwise.value_or(0.0), "0.00000"));
  t += kCrLf;
  t += kCrLf;
  t += Line(" Analysis at Individual Sites", "");
  t += Line("   Number of sites analyzed: ", Format(r.SitesAnalyzed, "0.00"));
  t += Line("   Number of polymorphic sites, S: ", StrNum(r.SegSites));
  t += Line("   Average number of differences: ", Format(r.K, "0.000"));
  t += Line("   Nucleotide diversity, Pi: ", Format(r.Pi.value_or(0.0), "0.00000"));
  t += Line("   Theta-W, per sequence: ", Format(r.ThetaWSequence, "0.00000"));
  t += Line("   Theta-W, per site: ", Format(r.ThetaWSite.value_or(0.0), "0.00000"));
  return t;
}

std::string DnaPolReportBody(const DnaPolResult& result, int16_t gaps_in_sets) {
  if (result.Deletion) return PairwiseDeletionText(*result.Deletion, gaps_in_sets);
  std::string t = PolymorphismFirstBlock(result.Stats.value_or(PolyStats{}), result.Haplotypes);
  if (result.SamplingVariance) t += SamplingVarianceLines(*result.SamplingVariance);
  // Pi(JC) is computed over net sites; with no usable pair its line shows 0.
  const bool net_sites = result.Stats && result.Stats->NetSites != 0;
  if (result.JukesCantorAsked && net_sites) t += JukesCantorLine(result.PiJC.value_or(0.0));
  if (result.Variances) t += ThetaVarianceBlock(*result.Variances);
  if (result.Windows) t += SlidingBlock(result.Windows->Geometry);
  return t;
}

}  // namespace ovelt
