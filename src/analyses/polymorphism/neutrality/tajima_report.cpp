#include "analyses/polymorphism/neutrality/tajima_report.h"

#include "analyses/polymorphism/diversity/dna_polymorphism_report.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "core/line_end.h"
#include "output/format_mask.h"
#include "stats/significance_words.h"

namespace ovelt {
namespace {

std::string Line(const std::string& label, const std::string& value) {
  return label + value + kCrLf;
}

}  // namespace

std::string CalculationLine(bool use_mutations) {
  return use_mutations ? " Calculation using the total number of mutations"
                       : " Calculation using the total number of segregating sites";
}

std::string TajimaReportBody(const TajimaTestResult& r) {
  std::string t = PolymorphismFirstBlock(r.Stats);
  t += Line(" Average number of nucleotide differences, k: ", Format(r.Stats.AvgDiffs, "0.00000"));
  t += Line("    Nucleotide diversity, Pi: ", Format(r.Stats.PiValue, "0.00000"));
  if (r.UseMutations) {
    t += Line(" Theta (per sequence) from Eta: ", Format(r.ThetaSequence, "0.00000"));
    t += Line("    Theta (per site) from Eta: ", Format(r.ThetaSite, "0.00000"));
  } else {
    t += Line(" Theta (per sequence) from S, Theta-W: ", Format(r.ThetaSequence, "0.00000"));
    t += Line("    Theta (per site) from S, Theta-W: ", Format(r.ThetaSite, "0.00000"));
  }
  if (!r.D) return t;  // no D: the run says why in a message
  t += kCrLf;
  t += Line(" Tajima's D: ", Format(*r.D, "0.00000"));
  t += Line("     Statistical significance: ", SignificanceWords(r.Mark, MarkFamily::kTajima));
  t += kCrLf;
  t += CalculationLine(r.UseMutations) + kCrLf;
  if (r.Windows) {
    t += SlidingBlock(r.Windows->Geometry);
    t += TajimaWindowLegend() + kCrLf;
  }
  return t;
}

}  // namespace ovelt
