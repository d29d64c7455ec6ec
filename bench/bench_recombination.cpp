// The estimators of the Recombination command on generated alignments: Rm over 1,250 to 5,000
// biallelic sites (the pairs of sites grow with the square of the sites), and Hudson's estimate
// of C over 125 to 500 sequences (the pairs of sequences grow with the square of n).

#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "analyses/recombination/four_gametes.h"
#include "analyses/recombination/interval_reductions.h"
#include "analyses/recombination/recombination_compute.h"
#include "core/active_data.h"
#include "core/selection.h"
#include "core/site_scan.h"

namespace {

struct Workload {
  std::unique_ptr<ovelt::ActiveData> Data;
  ovelt::Selection Sel;
};

// Every site biallelic (A or G), the G of each site at its own frequency between 2% and 50%:
// most pairs of common sites show four gametes, the hard case for the reductions.
Workload MakeSelection(int32_t seqs, int32_t sites) {
  std::mt19937 rng(17);
  std::uniform_real_distribution<double> uniform(0.0, 1.0);
  std::vector<std::vector<char>> rows(static_cast<size_t>(seqs),
                                      std::vector<char>(static_cast<size_t>(sites), 'A'));
  for (int32_t s = 0; s < sites; ++s) {
    const double freq = 0.02 + 0.48 * uniform(rng);
    bool any = false;
    for (int32_t q = 1; q < seqs; ++q) {
      if (uniform(rng) < freq) {
        rows[static_cast<size_t>(q)][static_cast<size_t>(s)] = 'G';
        any = true;
      }
    }
    if (!any) rows[static_cast<size_t>(seqs - 1)][static_cast<size_t>(s)] = 'G';
  }
  auto data = std::make_unique<ovelt::ActiveData>();
  ovelt::ActiveData& d = *data;
  d.RawMatrix.set_sites(sites);
  d.RawMatrix.reserve_sequences(seqs);
  for (const auto& row : rows) d.RawMatrix.append_sequence(row.data());
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

// Rm: the four-gamete table and both reductions, 50 sequences.
void BM_Rm(benchmark::State& state) {
  const auto sites = static_cast<int32_t>(state.range(0));
  const Workload w = MakeSelection(50, sites);
  int64_t pairs = 0;
  int32_t rm = 0;
  for (auto _ : state) {
    const ovelt::RmEstimate r = ovelt::EstimateRm(w.Sel, 1, sites);
    pairs = static_cast<int64_t>(r.FourGametePairs.size());
    rm = r.Rm;
    benchmark::DoNotOptimize(&rm);
    benchmark::ClobberMemory();
  }
  state.counters["four_gamete_pairs"] = static_cast<double>(pairs);
  state.counters["rm"] = rm;
}
BENCHMARK(BM_Rm)->Arg(1250)->Arg(2500)->Arg(5000)->Unit(benchmark::kMillisecond);

// Hudson's C: Sk^2 over the pairs of sequences, then the grid search, 1,000 sites.
void BM_HudsonC(benchmark::State& state) {
  const auto seqs = static_cast<int32_t>(state.range(0));
  const Workload w = MakeSelection(seqs, 1000);
  double c = 0.0;
  for (auto _ : state) {
    const ovelt::HudsonEstimate e = ovelt::EstimateHudsonC(w.Sel, 1, 1000);
    c = e.C;
    // Through a pointer: DoNotOptimize on a double itself can garble it with some compilers.
    benchmark::DoNotOptimize(&c);
    benchmark::ClobberMemory();
  }
  state.SetLabel(c > 10000.0 ? "C above 10000" : "C = " + std::to_string(c));
}
BENCHMARK(BM_HudsonC)->Arg(125)->Arg(250)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace
