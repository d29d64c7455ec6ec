#include "analyses/divergence/dna_divergence/dna_divergence_report.h"

#include <cmath>

#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {
namespace {

std::string Line(const std::string& text) { return text + kCrLf; }

// The standard deviation line of a variance, only when the variance is above 0.
std::string DeviationLine(const std::string& label, const std::optional<double>& variance) {
  if (!variance || *variance <= 0.0) return {};
  return Line(label + Format(std::sqrt(*variance), "0.00000"));
}

// A Jukes and Cantor value with its deviation, or "not determined" when there is none above 0.
std::string JukesCantorLines(const std::string& label, const std::string& deviation_label,
                             const std::optional<float>& value,
                             const std::optional<double>& variance) {
  if (!value || *value <= 0.0F) return Line(label + "not determined");
  return Line(label + Format(*value, "0.00000")) + DeviationLine(deviation_label, variance);
}

const DivergenceJukesCantor kNoJukesCantor{};
const DivergenceVariances kNoVariances{};

std::string PopulationLines(int which, const std::string& name, int32_t n, int32_t s,
                            int32_t mutations, double k, double pi, bool variances,
                            const std::optional<float>& pi_jc,
                            const std::optional<double>& variance) {
  const std::string p = std::to_string(which);
  std::string t = Line(" Population " + p + ": " + name);
  t += Line("   Number of sequences: " + StrNum(n));
  t += Line("   Number of polymorphic sites: " + StrNum(s));
  t += Line("      Total number of mutations: " + StrNum(mutations));
  t += Line("   Average number of nucleotide differences, k: " + Format(k, "0.000"));
  t += Line("   Nucleotide diversity, Pi(" + p + "): " + Format(pi, "0.00000"));
  if (variances)
    t += JukesCantorLines("   Nucleotide diversity with Jukes and Cantor, Pi(" + p + ")JC: ",
                          "      Standard deviation of Pi(" + p + ")JC: ", pi_jc, variance);
  return t;
}

}  // namespace

std::string DnaDivergenceReport(const DnaDivergenceResult& r) {
  const DivergenceSums& s = r.Sums;
  const DivergenceJukesCantor& jc = r.JukesCantor ? *r.JukesCantor : kNoJukesCantor;
  const DivergenceVariances& v = r.Variances ? *r.Variances : kNoVariances;
  std::optional<double> var_da;
  if (r.Variances) var_da = v.VarDa;

  std::string t = kCrLf;
  t += Line(" Input Data File: " + r.FilePath);
  t += Line(" Selected region: " + StrNum(r.RegionFrom) + "-" + StrNum(r.RegionTo));
  t += Line("     Number of sites: " + StrNum(r.RegionTo - r.RegionFrom + 1));
  t += Line(" Total sites (excluding alignment gaps): " + StrNum(s.L));
  if (r.GapsExcludedInFile)
    t += Line(" Sites with alignment gaps in the complete data file have been excluded");
  t += PopulationLines(1, r.Name1, r.N1, s.S1, s.Mutations1, s.K1, s.Pi1, r.ComputeVariances,
                       jc.Pi1JC, v.VarPi1);
  t += PopulationLines(2, r.Name2, r.N2, s.S2, s.Mutations2, s.K2, s.Pi2, r.ComputeVariances,
                       jc.Pi2JC, v.VarPi2);
  t += Line(" Total data:  ");
  t += Line("   Number of sequences: " + StrNum(r.N1 + r.N2));
  t += Line("   Number of polymorphic sites: " + StrNum(s.S));
  t += Line("      Total number of mutations: " + StrNum(r.Kinds.Total()));
  t += Line("   Average number of nucleotide differences, k: " + Format(s.KTotal, "0.000"));
  if (s.PiTotal) t += Line("   Nucleotide diversity, Pi(t): " + Format(*s.PiTotal, "0.00000"));
  t += Line(" Between populations:  ");
  t += Line("   Number of fixed differences: " + StrNum(r.Kinds.Fixed));
  t += Line("   Mutations polymorphic in population 1, but monomorphic in population 2: " +
            StrNum(r.Kinds.Private1));
  t += Line("   Mutations polymorphic in population 2, but monomorphic in population 1: " +
            StrNum(r.Kinds.Private2));
  t += Line("   Shared Mutations: " + StrNum(r.Kinds.Shared));
  t += Line("   Average number of nucleotide differences between populations: " +
            Format(s.Dxy * s.L, "0.000"));
  t += Line("   Average number of nuc. subs. per site between populations, Dxy: " +
            Format(s.Dxy, "0.00000"));
  if (r.ComputeVariances)
    t += JukesCantorLines("   Dxy with Jukes and Cantor, Dxy(JC): ",
                          "      Standard deviation of Dxy(JC): ", jc.DxyJC, v.VarDxy);
  t += Line("   Number of net nuc. subs. per site between populations, Da: " +
            Format(s.Da, "0.00000"));
  if (r.ComputeVariances) {
    // Da may fall below 0: any determined value is printed.
    if (jc.DaJC)
      t += Line("   Da with Jukes and Cantor, Da(JC): " + Format(*jc.DaJC, "0.00000")) +
           DeviationLine("      Standard deviation of Da(JC): ", var_da);
    else
      t += Line("   Da with Jukes and Cantor, Da(JC): not determined");
  }
  return t;
}

}  // namespace ovelt
