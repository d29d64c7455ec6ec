#pragma once
// The sequences of a gene-flow run: the populations taken in (the active sequence sets with two
// included sequences or more), and their sequences, one after the other, reduced to the sites
// that vary among them under the chosen treatment of gaps:
//   1 sites with a gap (or missing datum) in any population taken in are dropped;
//   2 they are kept, and a pair of sequences skips the sites where either has one;
//   3 they are kept, and a gap is one more state.
// With gaps excluded in the whole file (`GapsInSets` 2) the sites with a gap anywhere in the
// file are dropped in every mode.

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

struct FlowPopulation {
  std::string Name;
  int32_t Begin = 0;  // its first sequence among the sample's, from 0
  int32_t Count = 0;
};

struct GeneFlowSample {
  std::vector<FlowPopulation> Populations;
  std::vector<std::string> Names;      // of the sequences, 20-character fields
  std::vector<std::string> Sequences;  // the varying sites only
  int16_t GapMode = 1;
  int32_t Sites = 0;  // L: the sites of the region kept by the gap mode
  bool GapsExcludedInFile = false;

  [[nodiscard]] int32_t Total() const { return static_cast<int32_t>(Sequences.size()); }
  // Sites that vary among the sequences (the "polymorphic sites used").
  [[nodiscard]] int32_t VaryingSites() const {
    return Sequences.empty() ? 0 : static_cast<int32_t>(Sequences.front().size());
  }
};

inline constexpr const char* kGeneFlowTail =
    " Can't compute the Gene Flow between/among populations.";

// The sets taken in, or the refusal that says why there are not two.
struct FlowPopulationChoice {
  std::vector<std::pair<std::string, std::vector<int32_t>>> Sets;  // name, included members
  std::optional<std::string> Refusal;
};
[[nodiscard]] FlowPopulationChoice ChooseFlowPopulations(const ActiveData& ad);

// The sample over from..to, or the refusal when no site varies.
[[nodiscard]] std::variant<GeneFlowSample, std::string> BuildGeneFlowSample(
    const ActiveData& ad, const FlowPopulationChoice& choice, int32_t from, int32_t to,
    int16_t gap_mode);

// A cell that is not A, C, G or T: a gap or missing datum.
[[nodiscard]] inline bool IsFlowGap(char cell) {
  return cell != 'A' && cell != 'C' && cell != 'G' && cell != 'T';
}

}  // namespace ovelt
