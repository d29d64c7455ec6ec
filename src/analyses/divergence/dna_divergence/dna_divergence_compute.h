#pragma once
// DNA divergence between two populations over one region, in the order of a run: `SiteDxy` of
// the two classified selections, the sums (Pi, Dxy, Da, k(t)), the four kinds of mutation, and,
// when asked for and the region has a net site, the Jukes and Cantor means with their variances.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/divergence/common/mutation_kinds.h"
#include "analyses/divergence/dna_divergence/divergence_jukes_cantor.h"
#include "analyses/divergence/dna_divergence/divergence_sums.h"
#include "analyses/divergence/dna_divergence/divergence_variances.h"
#include "analyses/divergence/dna_divergence/divergence_windows.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

namespace dna_divergence_detail {

inline std::optional<double> Widened(const std::optional<float>& value) {
  return value ? std::optional<double>(*value) : std::nullopt;
}

// One population's lines of the report, as JSON.
struct PopulationFields {
  std::string Name;
  int32_t Sequences = 0, SegregatingSites = 0, Mutations = 0;
  double K = 0.0, Pi = 0.0;
  std::optional<double> PiJC, VarPiJC;

  template <class V>
  void Visit(V& v) const {
    v.Text("name", Name);
    v.Integer("sequences", Sequences);
    v.Integer("segregating_sites", SegregatingSites);
    v.Integer("mutations", Mutations);
    v.Number("k", K);
    v.Number("pi", Pi);
    v.Optional("pi_jc", PiJC);
    v.Optional("var_pi_jc", VarPiJC);
  }
};

// The total data: both populations as one sample.
struct TotalFields {
  int32_t Sequences = 0, SegregatingSites = 0, Mutations = 0;
  double K = 0.0;
  std::optional<double> Pi;

  template <class V>
  void Visit(V& v) const {
    v.Integer("sequences", Sequences);
    v.Integer("segregating_sites", SegregatingSites);
    v.Integer("mutations", Mutations);
    v.Number("k", K);
    v.Optional("pi", Pi);
  }
};

}  // namespace dna_divergence_detail

struct DnaDivergenceResult {
  std::string FilePath;
  bool GapsExcludedInFile = false;  // `GapsInSets` 2
  std::string Name1, Name2;         // the names of the two sequence sets
  bool ComputeVariances = false;
  int32_t RegionFrom = 0, RegionTo = 0;
  int32_t N1 = 0, N2 = 0;
  std::vector<double> SiteDxy;  // every site of the file, index 0 unused
  DivergenceSums Sums;
  MutationKinds Kinds;
  // Present when the variances were asked for and L is at least 1.
  std::optional<DivergenceJukesCantor> JukesCantor;
  std::optional<DivergenceVariances> Variances;
  // Along a sliding window (no Jukes and Cantor step then).
  std::optional<DivergenceWindows> Windows;
  // The box of a Jukes and Cantor step that could not run; the report then says "not
  // determined" where its values stand.
  std::optional<std::string> JukesCantorFailure;

  template <class V>
  void Visit(V& v) const {
    using dna_divergence_detail::Widened;
    static const DivergenceJukesCantor kNone{};
    const DivergenceJukesCantor& jc = JukesCantor ? *JukesCantor : kNone;
    const DivergenceVariances var = Variances ? *Variances : DivergenceVariances{};
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sites", RegionTo - RegionFrom + 1);
    v.Integer("net_sites", Sums.L);
    v.Bool("gaps_excluded_in_file", GapsExcludedInFile);
    v.Bool("variances", ComputeVariances);
    v.Object("population1",
             dna_divergence_detail::PopulationFields{Name1, N1, Sums.S1, Sums.Mutations1, Sums.K1,
                                                     Sums.Pi1, Widened(jc.Pi1JC), var.VarPi1});
    v.Object("population2",
             dna_divergence_detail::PopulationFields{Name2, N2, Sums.S2, Sums.Mutations2, Sums.K2,
                                                     Sums.Pi2, Widened(jc.Pi2JC), var.VarPi2});
    v.Object("total", dna_divergence_detail::TotalFields{N1 + N2, Sums.S, Kinds.Total(),
                                                         Sums.KTotal, Sums.PiTotal});
    v.Integer("fixed_differences", Kinds.Fixed);
    v.Integer("private_mutations1", Kinds.Private1);
    v.Integer("private_mutations2", Kinds.Private2);
    v.Integer("shared_mutations", Kinds.Shared);
    v.Number("k_between", Sums.Dxy * Sums.L);
    v.Number("dxy", Sums.Dxy);
    v.Optional("dxy_jc", Widened(jc.DxyJC));
    v.Optional("var_dxy_jc", var.VarDxy);
    v.Number("da", Sums.Da);
    v.Optional("da_jc", Widened(jc.DaJC));
    v.Optional("var_da_jc", Variances ? std::optional<double>(var.VarDa) : std::nullopt);
    v.Object("sliding_window", Windows);
  }
};

// Over the region of `sel`, whose first and second selections are classified (`ClassifyFirst`,
// `ClassifySecond`).
[[nodiscard]] DnaDivergenceResult ComputeDnaDivergence(const Selection& sel,
                                                       bool compute_variances,
                                                       const Progress& progress = {});

}  // namespace ovelt
