#include "analyses/divergence/gene_flow/gene_flow_report.h"

#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string Line(const std::string& text) {
  return text + kCrLf;
}

std::string Value(const std::optional<double>& x) {
  return x ? Format(*x, "0.00000") : std::string("n.d.");
}

// A P value of the permutation test with its mark: " ns", " *", " **", " ***".
std::string PValue(double p) {
  std::string mark = " ns";
  if (p < 0.001) {
    mark = " ***";
  } else if (p < 0.01) {
    mark = " **";
  } else if (p < 0.05) {
    mark = " *";
  }
  return Format(p, "0.0000") + mark;
}

std::string NmText(const std::optional<double>& nm) {
  return "    Nm: " + (nm ? Format(*nm, "0.00") : std::string());
}

std::string GapModeText(int16_t mode) {
  switch (mode) {
    case 2:
      return "Excluded only in pairwise comparisons";
    case 3:
      return "Considered (gap as the fifth state)";
    default:
      return "Excluded";
  }
}

std::string PopulationLines(const FlowPopulationSummary& p, const std::string& k_label,
                            const std::string& pi_label) {
  std::string t = Line("   Number of sequences: " + StrNum(p.Sequences));
  t += Line("   Number of segregating sites, S: " + StrNum(p.SegregatingSites));
  t += Line("   Number of haplotypes, h: " + StrNum(p.Haplotypes));
  t += Line("   Haplotype diversity, Hd: " + Format(p.Hd, "0.00000"));
  t += Line(k_label + Format(p.K, "0.00000"));
  t += Line(pi_label + Format(p.Pi, "0.00000"));
  t += Line("   Nucleotide diversity with JC, PiJC: " + Value(p.PiJC));
  return t;
}

}  // namespace

std::string GeneFlowReport(const GeneFlowResult& r) {
  const Differentiation& s = r.Overall.Stats;
  std::string t = kCrLf;
  t += Line(" Input Data File: " + r.FilePath);
  t += Line(" Number of Populations Included: " +
            StrNum(static_cast<int64_t>(r.Populations.size())));
  t += Line(" Selected region: " + StrNum(r.RegionFrom) + "-" + StrNum(r.RegionTo));
  t += Line("     Number of sites: " + StrNum(r.RegionTo - r.RegionFrom + 1));
  t += Line(" Sites with alignment gaps are: " + GapModeText(r.GapMode));
  if (r.GapMode == 1) t += Line(" Total sites (excluding alignment gaps): " + StrNum(r.Sites));
  if (r.GapsExcludedInFile)
    t += Line("    Sites with gaps in the complete data file were excluded");
  for (size_t i = 0; i < r.Populations.size(); ++i) {
    t += Line(" Population " + std::to_string(i + 1) + ": " + r.Populations[i].Name);
    t += PopulationLines(r.Populations[i],
                         "   Average number of differences, K: ", "   Nucleotide diversity, Pi: ");
  }
  t += Line(" Total Data Estimates");
  t += PopulationLines(
      r.Total, "   Average number of nucleotide differences, K: ", "   Nucleotide diversity, Pi: ");
  t += kCrLf;
  t += Line(" =========== Genetic Differentiation Estimates ==========");
  t += Line("  ns, not significant;  *, 0.01<P<0.05;  **, 0.001<P<0.01;  ***, P<0.001");
  t += Line("  Chi-square (table), Chi2: " + Format(s.ChiSquare, "0.000"));
  t += Line("   P-value of Chi2: " + PValue(s.ChiSquareP) + ";  (df = " + StrNum(s.Df) + ")");
  const bool tested = r.Overall.P.has_value();
  const auto p = [&r](size_t i) { return PValue((*r.Overall.P)[i]); };
  t += Line("  HBK 1992,    Hst: " + Value(s.Hst));
  if (tested) t += Line("     PM test; P-value of Hs, Hst: " + p(0));
  t += Line("  HBK 1992,    Kst: " + Value(s.Kst));
  if (tested) t += Line("     PM test; P-value of Ks, Kst: " + p(1));
  t += Line("  HBK 1992,    Kst*: " + Value(s.KstLog));
  if (tested) t += Line("     PM test; P-value of Ks*, Kst*: " + p(2));
  t += Line("  HBK 1992,    Z: " + Format(s.Zs, "0.00000"));
  if (tested) t += Line("     PM test; P-value of Z: " + p(3));
  t += Line("  HBK 1992,    Z*: " + Format(s.ZsLog, "0.00000"));
  if (tested) t += Line("     PM test; P-value of Z*: " + p(4));
  t += Line("  Hudson 2000, Snn: " + Format(s.Snn, "0.00000"));
  if (tested) {
    t += Line("     PM test; P-value of Snn: " + p(5));
    t += Line("  PM test; Probability obtained by the permutation test with " +
              StrNum(r.Replicates) + " replicates)");
  }
  t += kCrLf;
  t += Line(" =========== Gene Flow Estimates ===========");
  t += Line("  Haplotype Data Information");
  t += Line("     Nei 1973");
  t += Line("        Gst: " + Value(s.Gst) + NmText(r.Nm(s.Gst)));
  t += Line("  Sequence Data Information");
  t += Line("     Nei 1982");
  t += Line("        DeltaSt: " + Format(s.DeltaSt, "0.00000") + "    " +
            "    GammaSt: " + Value(s.GammaSt) + NmText(r.Nm(s.GammaSt)));
  t += Line("     Lynch and Crease 1990  (with Jukes and Cantor correction)");
  t += Line("        Nst: " + Format(s.Nst, "0.00000"));
  t += Line("     Hudson, Slatkin and Maddison 1992");
  t += Line("        Fst: " + Format(s.Fst, "0.00000") + NmText(r.Nm(s.Fst)));
  return t;
}

std::vector<std::string> GeneFlowPairTitles() {
  return {"POPULATION 1", "POPULATION 2", "Hs",  "Ks",  "Kxy", "Gst",
          "DeltaSt",      "GammaSt",      "Nst", "Fst", "Dxy", "Da"};
}

namespace {

std::vector<std::string> PairValues(const Differentiation& s) {
  return {Format(s.Hs, "0.00000"),      Format(s.Ks, "0.00000"),
          Format(s.Kxy, "0.00000"),     Format(s.Gst.value_or(0.0), "0.00000"),
          Format(s.DeltaSt, "0.00000"), Format(s.GammaSt.value_or(0.0), "0.00000"),
          Format(s.Nst, "0.00000"),     Format(s.Fst, "0.00000"),
          Format(s.Dxy, "0.00000"),     Format(s.Da, "0.00000")};
}

}  // namespace

std::vector<std::string> GeneFlowPairRow(const GeneFlowPair& pair) {
  std::vector<std::string> row = {pair.Name1, pair.Name2};
  for (std::string& v : PairValues(pair.Estimates.Stats)) row.push_back(std::move(v));
  return row;
}

GeneFlowTable GeneFlowPairTable(const GeneFlowResult& result) {
  GeneFlowTable table;
  for (const GeneFlowPair& pair : result.Pairs)
    table.Rows.push_back({pair.Name1, pair.Name2, PairValues(pair.Estimates.Stats)});
  return table;
}

std::vector<std::string> GeneFlowTestTitles() {
  return {"POPULATION 1", "POPULATION 2", "P(Hs)", "P(Ks)", "P(Ks*)", "P(Z)", "P(Z*)", "P(Snn)"};
}

std::vector<std::string> GeneFlowTestRow(const GeneFlowPair& pair) {
  std::vector<std::string> row = {pair.Name1, pair.Name2};
  if (pair.Estimates.P)
    for (const double p : *pair.Estimates.P) row.push_back(Format(p, "0.0000"));
  return row;
}

}  // namespace ovelt
