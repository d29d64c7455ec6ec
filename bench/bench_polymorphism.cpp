// DNA polymorphism on generated alignments: the report with haplotypes and the variance block
// must take about a second for 1,000 sequences x 100,000 sites, and the sliding window must
// grow linearly with the sites.

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

#include "analyses/polymorphism/diversity/dna_polymorphism.h"
#include "analyses/polymorphism/common/haplotypes.h"
#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/common/pi_variance.h"
#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "core/active_data.h"
#include "core/selection.h"
#include "core/site_scan.h"

namespace {

// The selection of all sequences over all sites, with the data it was made from.
struct Workload {
  std::unique_ptr<ovelt::ActiveData> Data;
  ovelt::Selection Sel;
};

// Sequences descend from one ancestor with a rare mutation every 20 sites on average, so that
// most sites carry a few variants, as samples do. Every 500th site has a gap in one sequence.
Workload MakeSelection(int32_t seqs, int32_t sites) {
  std::mt19937 rng(7);
  const char bases[4] = {'A', 'C', 'G', 'T'};
  std::vector<char> ancestor(static_cast<size_t>(sites));
  for (auto& c : ancestor) c = bases[rng() % 4];
  auto data = std::make_unique<ovelt::ActiveData>();
  ovelt::ActiveData& d = *data;
  d.RawMatrix.set_sites(sites);
  d.RawMatrix.reserve_sequences(seqs);
  std::vector<char> row;
  for (int32_t q = 0; q < seqs; ++q) {
    row = ancestor;
    for (int32_t s = 0; s < sites; s += 20)
      row[static_cast<size_t>(s + rng() % 20) % row.size()] = bases[rng() % 4];
    if (q % 50 == 0)
      for (int32_t s = q % 500; s < sites; s += 500) row[static_cast<size_t>(s)] = '-';
    d.RawMatrix.append_sequence(row.data());
  }
  d.NumSites = sites;
  d.NumSeqs = seqs;
  d.TotalSeqs = static_cast<int16_t>(seqs);
  d.SeqIncluded.assign(static_cast<size_t>(seqs) + 1, true);
  d.IncMatrix = d.RawMatrix;
  ovelt::ClassifyAllSites(d);
  d.RawSiteClass = d.SiteClass;
  ovelt::ComputeSiteDiversity(d);
  d.Region = {1, sites};
  Workload w;
  w.Sel = ovelt::SelectOneSet(d, 0, d.Region);
  w.Data = std::move(data);
  return w;
}

void BM_DnaPolymorphismReport(benchmark::State& state) {
  const auto seqs = static_cast<int32_t>(state.range(0));
  const auto sites = static_cast<int32_t>(state.range(1));
  const Workload w = MakeSelection(seqs, sites);
  ovelt::DnaPolOptions options;
  options.ComputeVarPi = options.ComputeJC = true;
  for (auto _ : state) {
    auto r = ovelt::ComputeDnaPolymorphism(w.Sel, 1, sites, options, {});
    benchmark::DoNotOptimize(r.SamplingVariance);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}
BENCHMARK(BM_DnaPolymorphismReport)
    ->Args({100, 10000})
    ->Args({1000, 10000})
    ->Args({1000, 100000})
    ->Unit(benchmark::kMillisecond);

void BM_Haplotypes(benchmark::State& state) {
  const auto sites = static_cast<int32_t>(state.range(1));
  const Workload w = MakeSelection(static_cast<int32_t>(state.range(0)), sites);
  for (auto _ : state) benchmark::DoNotOptimize(ovelt::ComputeHaplotypes(w.Sel, 1, sites).Hd);
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}
BENCHMARK(BM_Haplotypes)->Args({1000, 100000})->Unit(benchmark::kMillisecond);

void BM_PairwiseDifferences(benchmark::State& state) {
  const auto sites = static_cast<int32_t>(state.range(1));
  const Workload w = MakeSelection(static_cast<int32_t>(state.range(0)), sites);
  for (auto _ : state) {
    const ovelt::PairCounts counts = ovelt::PairwiseDifferences(w.Sel, 1, sites);
    benchmark::DoNotOptimize(counts.at(1, 2));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}
BENCHMARK(BM_PairwiseDifferences)->Args({1000, 100000})->Unit(benchmark::kMillisecond);

void BM_SlidingWindowPi(benchmark::State& state) {
  const auto sites = static_cast<int32_t>(state.range(0));
  const Workload w = MakeSelection(20, sites);
  const ovelt::SlidingWindowSpec geometry{100, 1, false};
  for (auto _ : state) {
    auto windows = ovelt::ComputePiThetaWindows(w.Sel, 1, sites, geometry);
    benchmark::DoNotOptimize(windows.Rows.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SlidingWindowPi)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
