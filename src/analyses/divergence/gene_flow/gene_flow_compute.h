#pragma once
// Gene flow and genetic differentiation among the populations of a run, and between every two
// of them: the tables, the statistics, the permutation tests (every pair first, then all the
// populations together, from one stream of random numbers) and Nm.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/divergence/gene_flow/flow_permutation.h"
#include "analyses/divergence/gene_flow/flow_statistics.h"
#include "analyses/divergence/gene_flow/gene_flow_sample.h"
#include "command/progress.h"

namespace ovelt {

// One population's lines of the report.
struct FlowPopulationSummary {
  std::string Name;
  int32_t Sequences = 0, SegregatingSites = 0, Haplotypes = 0;
  double Hd = 0.0, K = 0.0, Pi = 0.0;
  std::optional<double> PiJC;

  template <class V>
  void Visit(V& v) const {
    v.Text("name", Name);
    v.Integer("sequences", Sequences);
    v.Integer("segregating_sites", SegregatingSites);
    v.Integer("haplotypes", Haplotypes);
    v.Number("hd", Hd);
    v.Number("k", K);
    v.Number("pi", Pi);
    v.Optional("pi_jc", PiJC);
  }
};

// The statistics of the grid and of the JSON for one set of populations.
struct FlowEstimates {
  Differentiation Stats;
  std::optional<TestedValues> P;  // Hs, Ks, Ks*, Zs, Zs*, Snn

  template <class V>
  void Visit(V& v) const;
};

struct GeneFlowPair {
  int32_t First = 0, Second = 0;  // populations, from 1
  std::string Name1, Name2;
  FlowEstimates Estimates;

  template <class V>
  void Visit(V& v) const {
    v.Text("population1", Name1);
    v.Text("population2", Name2);
    Estimates.Visit(v);
  }
};

struct GeneFlowResult {
  std::string FilePath;
  int32_t RegionFrom = 0, RegionTo = 0;
  int16_t GapMode = 1;
  int32_t Sites = 0;  // L
  int32_t VaryingSites = 0;
  bool GapsExcludedInFile = false;
  std::vector<FlowPopulationSummary> Populations;
  FlowPopulationSummary Total;
  FlowEstimates Overall;
  int32_t Replicates = 0;  // 0: no test
  int32_t Seed = 0;        // as run (0 became 111295)
  double NmDivisor = 4.0;  // 1 Y or W, 3 X or Z, else 2 haploid, 4 diploid
  std::vector<GeneFlowPair> Pairs;

  // (1/X - 1) / a for a statistic above 0.
  [[nodiscard]] std::optional<double> Nm(const std::optional<double>& x) const {
    if (!x || *x <= 0.0) return std::nullopt;
    return (1.0 / *x - 1.0) / NmDivisor;
  }

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sites", RegionTo - RegionFrom + 1);
    v.Integer("net_sites", Sites);
    v.Integer("gap_mode", GapMode);
    v.Bool("gaps_excluded_in_file", GapsExcludedInFile);
    v.Integer("polymorphic_sites_used", VaryingSites);
    v.Array("populations", Populations);
    v.Object("total", Total);
    Overall.Visit(v);
    v.Optional("nm_gst", Nm(Overall.Stats.Gst));
    v.Optional("nm_gamma_st", Nm(Overall.Stats.GammaSt));
    v.Optional("nm_fst", Nm(Overall.Stats.Fst));
    v.Integer("replicates", Replicates);
    v.Integer("seed", Seed);
    v.Array("population_pairs", Pairs);
  }
};

template <class V>
void FlowEstimates::Visit(V& v) const {
  const Differentiation& s = Stats;
  v.Number("hs", s.Hs);
  v.Number("ks", s.Ks);
  v.Number("ks_star", s.KsLog);
  v.Number("zs", s.Zs);
  v.Number("zs_star", s.ZsLog);
  v.Number("ht", s.Total.H);
  v.Number("kt", s.Total.K);
  v.Optional("hst", s.Hst);
  v.Optional("kst", s.Kst);
  v.Optional("kst_star", s.KstLog);
  v.Optional("zst", s.Zst);
  v.Optional("zst_star", s.ZstLog);
  v.Number("snn", s.Snn);
  v.Number("chi_square", s.ChiSquare);
  v.Integer("chi_square_df", s.Df);
  v.Number("chi_square_p", s.ChiSquareP);
  v.Optional("gst", s.Gst);
  v.Number("kxy", s.Kxy);
  v.Number("dxy", s.Dxy);
  v.Number("da", s.Da);
  v.Number("delta_st", s.DeltaSt);
  v.Optional("gamma_st", s.GammaSt);
  v.Number("nst", s.Nst);
  v.Number("fst", s.Fst);
  const auto p = [this](size_t i) { return P ? std::optional<double>((*P)[i]) : std::nullopt; };
  v.Optional("p_hs", p(0));
  v.Optional("p_ks", p(1));
  v.Optional("p_ks_star", p(2));
  v.Optional("p_zs", p(3));
  v.Optional("p_zs_star", p(4));
  v.Optional("p_snn", p(5));
}

[[nodiscard]] GeneFlowResult ComputeGeneFlow(const GeneFlowSample& sample,
                                             const std::string& file_path, int32_t from, int32_t to,
                                             int32_t replicates, int32_t seed, double nm_divisor,
                                             const Progress& progress = {});

// 1 for Y or W chromosomes, 3 for X or Z, otherwise 2 haploid and 4 diploid.
[[nodiscard]] double NmDivisor(int16_t chromosomal_location, int16_t genome_state);

}  // namespace ovelt
