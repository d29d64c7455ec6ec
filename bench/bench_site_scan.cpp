// Site scanning on generated alignments: classifying the sites and their diversities is done
// once per change of the included sequences, so it must scale linearly with the cells.

#include <benchmark/benchmark.h>

#include <random>

#include "core/active_data.h"
#include "core/site_scan.h"

namespace {

ovelt::ActiveData MakeData(int32_t seqs, int32_t sites) {
  std::mt19937 rng(7);
  std::vector<char> ancestor(static_cast<size_t>(sites));
  const char bases[4] = {'A', 'C', 'G', 'T'};
  for (auto& c : ancestor) c = bases[rng() % 4];
  ovelt::ActiveData d;
  d.RawMatrix.set_sites(sites);
  d.RawMatrix.reserve_sequences(seqs);
  std::vector<char> row;
  for (int32_t q = 0; q < seqs; ++q) {
    row = ancestor;
    for (int32_t s = 0; s < sites; s += 20) row[static_cast<size_t>(s + rng() % 20) % row.size()] = bases[rng() % 4];
    d.RawMatrix.append_sequence(row.data());
  }
  d.NumSites = sites;
  d.NumSeqs = seqs;
  d.IncMatrix = d.RawMatrix;
  return d;
}

void BM_ClassifyAllSites(benchmark::State& state) {
  ovelt::ActiveData d = MakeData(static_cast<int32_t>(state.range(0)), static_cast<int32_t>(state.range(1)));
  for (auto _ : state) {
    ovelt::ClassifyAllSites(d);
    benchmark::DoNotOptimize(d.SiteClass.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}
BENCHMARK(BM_ClassifyAllSites)->Args({100, 10000})->Args({100, 100000})->Args({1000, 100000});

void BM_SiteDiversity(benchmark::State& state) {
  ovelt::ActiveData d = MakeData(static_cast<int32_t>(state.range(0)), static_cast<int32_t>(state.range(1)));
  ovelt::ClassifyAllSites(d);
  for (auto _ : state) {
    ovelt::ComputeSiteDiversity(d);
    benchmark::DoNotOptimize(d.SiteDiversity.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}
BENCHMARK(BM_SiteDiversity)->Args({100, 10000})->Args({100, 100000})->Args({1000, 100000});

}  // namespace
