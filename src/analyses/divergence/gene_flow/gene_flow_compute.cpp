#include "analyses/divergence/gene_flow/gene_flow_compute.h"

#include <numeric>

namespace ovelt {

namespace {

// Sites that vary within some sequences of the sample (gaps ignored in gap modes 1 and 2).
int32_t Segregating(const GeneFlowSample& sample, int32_t begin, int32_t count) {
  int32_t s = 0;
  for (int32_t site = 0; site < sample.VaryingSites(); ++site) {
    char seen = 0;
    bool varies = false;
    for (int32_t i = begin; i < begin + count && !varies; ++i) {
      const char cell = sample.Sequences[static_cast<size_t>(i)][static_cast<size_t>(site)];
      if (sample.GapMode != 3 && IsFlowGap(cell)) continue;
      if (seen == 0) seen = cell;
      varies = cell != seen;
    }
    s += varies ? 1 : 0;
  }
  return s;
}

FlowPopulationSummary Summary(const std::string& name, const GroupMeans& m, int32_t segregating) {
  return {name, m.N, segregating, m.Haplotypes, m.H, m.K, m.Pi, m.PiJC};
}

std::vector<int32_t> SequencesOf(const FlowPopulation& p) {
  std::vector<int32_t> seqs(static_cast<size_t>(p.Count));
  std::iota(seqs.begin(), seqs.end(), p.Begin);
  return seqs;
}

// The statistics of some populations, with their test when asked.
FlowEstimates Estimate(const FlowTables& tables, const std::vector<const FlowPopulation*>& pops,
                       int32_t sites, int32_t replicates, FlowRandom& random) {
  std::vector<HaplotypeCounts> groups;
  std::vector<int32_t> sequences, sizes;
  for (const FlowPopulation* p : pops) {
    const std::vector<int32_t> seqs = SequencesOf(*p);
    groups.push_back(CountHaplotypes(tables, seqs));
    sequences.insert(sequences.end(), seqs.begin(), seqs.end());
    sizes.push_back(p->Count);
  }
  const FlowUniverse universe = MakeUniverse(tables, groups, sites);
  FlowEstimates e;
  e.Stats = Differentiate(universe, groups);
  if (replicates > 0)
    e.P = PermutationTest(universe, sequences, sizes, TestedStatistics(universe, groups),
                          replicates, random);
  return e;
}

}  // namespace

double NmDivisor(int16_t chromosomal_location, int16_t genome_state) {
  switch (chromosomal_location) {
    case 2:  // Y
    case 4:  // W
      return 1.0;
    case 1:  // X
    case 3:  // Z
      return 3.0;
    default:
      return genome_state == 1 ? 2.0 : 4.0;
  }
}

GeneFlowResult ComputeGeneFlow(const GeneFlowSample& sample, const std::string& file_path,
                               int32_t from, int32_t to, int32_t replicates, int32_t seed,
                               double nm_divisor, const Progress& progress) {
  const int32_t steps = replicates > 0 ? 6 : 4;
  const auto step = [&progress, steps](int n) {
    progress.Say("Computing Gene Flow (" + std::to_string(n) + "/" + std::to_string(steps) +
                 ") ...");
  };
  GeneFlowResult r;
  r.FilePath = file_path;
  r.RegionFrom = from;
  r.RegionTo = to;
  r.GapMode = sample.GapMode;
  r.Sites = sample.Sites;
  r.VaryingSites = sample.VaryingSites();
  r.GapsExcludedInFile = sample.GapsExcludedInFile;
  r.Replicates = replicates;
  r.Seed = seed == 0 ? 111295 : seed;
  r.NmDivisor = nm_divisor;

  step(1);
  const FlowTables tables = BuildFlowTables(sample);
  step(2);
  FlowRandom random(seed);
  std::vector<const FlowPopulation*> all;
  for (const FlowPopulation& p : sample.Populations) all.push_back(&p);
  step(3);
  // The pairs first: their tests draw from the stream before the test of all populations.
  step(4);
  const auto v = static_cast<int32_t>(all.size());
  for (int32_t a = 0; a < v; ++a)
    for (int32_t b = a + 1; b < v; ++b) {
      GeneFlowPair pair;
      pair.First = a + 1;
      pair.Second = b + 1;
      pair.Name1 = all[static_cast<size_t>(a)]->Name;
      pair.Name2 = all[static_cast<size_t>(b)]->Name;
      pair.Estimates = Estimate(tables, {all[static_cast<size_t>(a)], all[static_cast<size_t>(b)]},
                                sample.Sites, replicates, random);
      r.Pairs.push_back(std::move(pair));
    }
  if (replicates > 0) step(5);
  r.Overall = Estimate(tables, all, sample.Sites, replicates, random);
  for (size_t i = 0; i < all.size(); ++i)
    r.Populations.push_back(Summary(all[i]->Name, r.Overall.Stats.Groups[i],
                                    Segregating(sample, all[i]->Begin, all[i]->Count)));
  r.Total = Summary("", r.Overall.Stats.Total, Segregating(sample, 0, sample.Total()));
  if (replicates > 0) step(6);
  return r;
}

}  // namespace ovelt
