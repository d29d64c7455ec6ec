#pragma once
// DNA Polymorphism: the intraspecific summary of one selection over one region. Normal mode:
// segregating sites, mutations, haplotypes and haplotype diversity, nucleotide diversity Pi and,
// on request, its sampling variance and Pi(JC); then the thetas and the variances of k and theta
// (skipped when the region has no net site), or Pi, Theta and S along a sliding window.
// Missing-data mode: Pi with pairwise deletion of gaps and missing data; the statistics of the
// normal mode are then not determined.

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "analyses/polymorphism/common/haplotype_fields.h"
#include "analyses/polymorphism/common/haplotypes.h"
#include "analyses/polymorphism/common/pi_variance.h"
#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "analyses/polymorphism/diversity/dna_polymorphism_options.h"
#include "analyses/polymorphism/diversity/missing_data_pi.h"
#include "analyses/polymorphism/diversity/theta_variances.h"
#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "core/selection.h"

namespace ovelt {

inline const char* const kHaplotypeFailure = "Error computing the Haplotype Diversity";

struct DnaPolResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  int32_t Sequences = 0;  // n
  bool MissingData = false;
  // Normal mode.
  std::optional<PolyStats> Stats;
  std::optional<HaplotypeStats> Haplotypes;
  // Asked for (and not ruled out by the window); none with no net site.
  bool VarPiAsked = false;
  std::optional<PiSamplingVariance> SamplingVariance;
  bool JukesCantorAsked = false;
  std::optional<double> PiJC;
  std::optional<ThetaVariances> Variances;  // none with no net site
  std::optional<PiThetaWindows> Windows;
  // Missing-data mode.
  std::optional<PairwiseDeletion> Deletion;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Bool("missing_data", MissingData);
    v.Fields(Stats);
    VisitHaplotypes(v, Haplotypes);
    if (VarPiAsked) v.Fields(SamplingVariance);
    if (JukesCantorAsked) v.Optional("pi_jc", PiJC);
    v.Fields(Variances);
    v.Object("sliding_window", Windows);
    v.Object("pairwise_deletion", Deletion);
  }
};

// What the run shows while it computes: the status words of each step and the gauge.
struct PolyProgress {
  std::function<void(const std::string&)> Status;
  PolyGauge Gauge;
};

// The statistics of the options over the first selection (already filled, at least two
// sequences) and the region from..to. Throws CommandFailure: a failed step with
// its message; a fault in the loop over the windows as a result too big to show.
[[nodiscard]] DnaPolResult ComputeDnaPolymorphism(const Selection& sel, int32_t from, int32_t to,
                                                  const DnaPolOptions& options,
                                                  const SlidingWindowSpec& window,
                                                  const PolyProgress& progress = {});

}  // namespace ovelt
