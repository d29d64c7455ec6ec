#include "analyses/divergence/synonymous/synonymous_report.h"

#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string Line(const std::string& text) { return text + kCrLf; }

std::string Value(const std::optional<float>& value) {
  return Format(value ? *value : 0.0F, "0.00000");
}

std::string Value(const std::optional<double>& value) {
  return Format(value ? *value : 0.0, "0.00000");
}

std::string RegionList(const SynonymousResult& r) {
  std::string t = Line(" Protein Coding, and Non-Coding Regions analyzed: ");
  int coding = 0, noncoding = 0;
  for (const CodingRun& run : r.Runs) {
    t += Line((run.Coding ? "     Protein coding region, from site: "
                          : "       Non coding region, from site: ") +
              StrNum(run.From) + "  to  " + StrNum(run.To));
    ++(run.Coding ? coding : noncoding);
  }
  t += Line("   Number of protein coding regions (exons): " + StrNum(coding));
  t += Line("   Number of noncoding regions (intronic and flanking regions): " + StrNum(noncoding));
  return t;
}

// The four lines of one class: sites, Pi, Pi (JC) when above 0, and theta with the mutations
// when the gate lets them through.
std::string ClassLines(const std::string& sites_label, float sites, const char* pi_label,
                       const std::optional<float>& pi, const char* jc_label,
                       const std::optional<float>& jc, const char* theta_label, bool gate,
                       const std::optional<double>& theta, int32_t mutations) {
  std::string t = Line(sites_label + Format(sites, "0.00"));
  t += Line(pi_label + Value(pi));
  if (jc && *jc > 0.0F) t += Line(jc_label + Value(jc));
  if (gate) {
    t += Line(theta_label + Value(theta));
    t += Line("    Number of mutations: " + Format(mutations, "0"));
  }
  return t;
}

std::string SequenceLines(const SynonymousResult& r) {
  std::string t = Line(" Protein Coding Region.  Total Number of sites");
  t += Line(" SS, Synonymous sites.   NSS, NonSynonymous sites");
  for (const SequenceSynonymousSites& s : r.PerSequence)
    t += Line("    " + s.Name + "SS: " + Format(Format(s.Synonymous, "0.00"), "@@@@@@@") +
              "        NSS: " + Format(Format(s.Nonsynonymous, "0.00"), "@@@@@@@"));
  return t;
}

}  // namespace

std::string SynonymousReportBody(const SynonymousResult& r) {
  std::string t;
  t += Line(" Number of codons analyzed: " + StrNum(r.Codons) + "   ( " +
            StrNum(r.CodingSitesAnalyzed) + " sites )");
  if (r.CodonsWithGaps > 0)
    t += Line("    Total number of codons with alignment gaps or missing data: " +
              StrNum(r.CodonsWithGaps));
  if (r.Silent)
    t += Line(" Number non-coding positions analyzed: " + StrNum(r.Silent->NoncodingPositions));
  t += Line(" Genetic Code: " + r.GeneticCode);
  t += RegionList(r);
  if (r.CodingSitesAnalyzed > 0 || r.Silent) {
    t += Line(" Nucleotide Diversity:");
    if (r.CodingRegions) {
      t += ClassLines("    Synonymous sites. Number of sites: ", r.SynSites,
                      "         Pi(s): ", r.PiS, "    Pi(s), Jukes & Cantor: ", r.PiSJC,
                      "         Theta(s): ", r.ThetaGate, r.ThetaS, r.SynMutations);
      t += ClassLines("    NonSynonymous sites. Number of sites: ", r.NonsynSites,
                      "         Pi(a): ", r.PiA, "    Pi(a), Jukes & Cantor: ", r.PiAJC,
                      "         Theta(a): ", r.ThetaGate, r.ThetaA, r.NonsynMutations);
    }
    if (r.Silent)
      t += ClassLines("    Synonymous sites and non-coding positions. Number of sites: ",
                      r.Silent->Sites, "         Pi(s): ", r.Silent->Pi,
                      "    Pi(s), Jukes & Cantor: ", r.Silent->PiJC, "         Theta(s): ",
                      r.ThetaGate, r.Silent->Theta, r.Silent->Mutations);
  }
  if (r.ComplexCodons) {
    t += Line("      Some codons with complex evolutionary paths were detected.");
    t += Line("      Information from these codons were not used in computing theta.");
    t += Line("           More information in the Polymorphic Sites module");
  }
  if (r.CodingSitesAnalyzed > 0 && r.Sequences < kMaxSequenceSiteLines) t += SequenceLines(r);
  if (r.StopFound) {
    t += Line(" Stop codons have been found in the coding region. Ovelt has considered");
    t += Line("  that they could code for a rare amino acid (the 21st amino acid;");
    t += Line("  for example for Selenocysteine, Secys)");
  }
  return t;
}

}  // namespace ovelt
