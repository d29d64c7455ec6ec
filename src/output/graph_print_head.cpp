#include "output/graph_print_head.h"

#include "output/format_mask.h"
#include "output/graph_data.h"
#include "output/report_text.h"

namespace ovelt {

namespace {

constexpr size_t kRuleWidth = 72;

std::string ChartTitle(int16_t kind) {
  switch (kind) {
    case kGraphLinkage:
      return " Linkage Disequilibrium ";
    case kGraphDivergence:
      return " DNA Divergence between populations";
    case kGraphPolymorphism:
      return " DNA Polymorphism ";
    default:
      return "";
  }
}

}  // namespace

std::vector<std::string> GraphPrintHead(const GraphPrintFacts& facts) {
  std::vector<std::string> lines{std::string(kRuleWidth, '-'), kProgramBanner,
                                 " " + Format(facts.Date, "dd - mmmm - yyyy"),
                                 " Input Data File: " + facts.FilePath};
  if (const std::string title = ChartTitle(facts.GraphKind); !title.empty()) {
    lines.push_back(title);
    lines.push_back(std::string(title.size(), '-'));
  }
  const auto two_sets = [&](const char* first, const char* second) {
    lines.push_back(first + facts.PopulationName);
    lines.push_back("     Number of sequences: " + std::to_string(facts.SequencesUsed));
    lines.push_back(second + facts.SecondName);
    lines.push_back("     Number of sequences: " + std::to_string(facts.SecondSequences));
  };
  switch (facts.GraphKind) {
    case kGraphDivergence:
      two_sets(" Population 1: ", " Population 2: ");
      break;
    case kGraphFuLiOutgroup:
      two_sets(" Intraspecific Data: ", " Interspecific Data (outgroup): ");
      break;
    default:
      if (!facts.PopulationName.empty())
        lines.push_back(" Population used: " + facts.PopulationName);
      lines.push_back("    Number of sequences used: " + std::to_string(facts.SequencesUsed));
  }
  return lines;
}

}  // namespace ovelt
