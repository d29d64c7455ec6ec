#include "analyses/divergence/gene_flow/gene_flow_sample.h"

namespace ovelt {

namespace {

std::string Message(const std::string& head) {
  return head + kGeneFlowTail;
}

}  // namespace

FlowPopulationChoice ChooseFlowPopulations(const ActiveData& ad) {
  FlowPopulationChoice choice;
  const int32_t defined = ad.SetCount();
  if (defined == 0) {
    choice.Refusal = Message("There are 0 defined populations.");
    return choice;
  }
  if (defined == 1) {
    choice.Refusal = Message("There is only one defined population.");
    return choice;
  }
  int32_t active_with_included = 0;
  for (int32_t s = 1; s <= defined; ++s) {
    const PoblacionSecuencias& set = ad.SequenceSets[static_cast<size_t>(s)];
    if (set.active() == 0) continue;
    std::vector<int32_t> members;
    for (const double m : set.members()) {
      const auto seq = static_cast<int32_t>(m);
      if (seq >= 1 && seq <= ad.TotalSeqs && ad.SeqIncluded[static_cast<size_t>(seq)])
        members.push_back(seq);
    }
    if (members.empty()) continue;
    ++active_with_included;
    if (members.size() >= 2) choice.Sets.emplace_back(set.nombre(), std::move(members));
  }
  if (active_with_included == 0) {
    choice.Refusal = Message("There are 0 active populations with included sequences.");
  } else if (active_with_included == 1) {
    choice.Refusal = Message("There is only 1 active populations with included sequences.");
  } else if (choice.Sets.empty()) {
    choice.Refusal = Message("There are 0 populations with more than one sequence.");
  } else if (choice.Sets.size() == 1) {
    choice.Refusal = Message("There is only one population with more than one sequence.");
  }
  return choice;
}

std::variant<GeneFlowSample, std::string> BuildGeneFlowSample(const ActiveData& ad,
                                                              const FlowPopulationChoice& choice,
                                                              int32_t from, int32_t to,
                                                              int16_t gap_mode) {
  GeneFlowSample sample;
  sample.GapMode = gap_mode;
  sample.GapsExcludedInFile = ad.GapsInSets == 2;
  std::vector<int32_t> seqs;
  for (const auto& [name, members] : choice.Sets) {
    sample.Populations.push_back(
        {name, static_cast<int32_t>(seqs.size()), static_cast<int32_t>(members.size())});
    seqs.insert(seqs.end(), members.begin(), members.end());
  }
  const SeqMatrix& m = ad.RawMatrix;
  for (const int32_t seq : seqs) sample.Names.push_back(ad.RawNames[static_cast<size_t>(seq)]);
  sample.Sequences.assign(seqs.size(), std::string());
  for (int32_t site = from; site <= to; ++site) {
    if (sample.GapsExcludedInFile && ad.RawSiteClass[static_cast<size_t>(site)] == kGapOrMissing)
      continue;
    bool gap_here = false;
    bool varies = false;
    const char first = m.at(site, seqs.front());
    for (const int32_t seq : seqs) {
      const char cell = m.at(site, seq);
      gap_here = gap_here || IsFlowGap(cell);
      varies = varies || cell != first;
    }
    if (gap_mode == 1 && gap_here) continue;
    ++sample.Sites;
    if (!varies) continue;
    for (size_t i = 0; i < seqs.size(); ++i) sample.Sequences[i] += m.at(site, seqs[i]);
  }
  if (sample.VaryingSites() == 0)
    return std::string("No polymorphic sites in the selected region.") + kGeneFlowTail;
  return sample;
}

}  // namespace ovelt
