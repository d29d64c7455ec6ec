#pragma once
// All main statistics of one selection and region at a glance ("DNA Polymorphism Analysis" and
// each row of the multi-domain table): segregating sites and mutations, G+C content,
// haplotypes (Nei 1987), nucleotide diversity with its sampling variance, k, Watterson's theta
// (Watterson 1975) from S or from Eta, Tajima's D (Tajima 1989), Fu and Li's D* and F* (Fu and
// Li 1993), Fu's Fs and Strobeck's S (Fu 1997; Strobeck 1987), and the synonymous and
// nonsynonymous mutations of the coding sites. Statistics that a sample cannot give are not
// determined (none): k, Pi, theta and the haplotype diversity below 2 sequences, Pi, theta per
// site and the variance of Pi without a net site, the tests below 4 sequences or without
// polymorphism, Fs with k of 0. The reports print "n.d." for some and 0 for the others.

#include <cstdint>
#include <optional>
#include <string>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/neutrality/fs_fields.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/overview/overview_codon_changes.h"
#include "analyses/polymorphism/overview/overview_gc.h"
#include "core/selection.h"
#include "stats/fs_statistic.h"

namespace ovelt {

struct NeutralityValue {
  std::optional<double> Value;  // none when it cannot be computed
  std::string Mark = "n.d.";    // the significance mark ("n.d." when none can be given)
};

struct OverviewStats {
  bool UseMutations = false;
  int32_t SampleSize = 0;  // n
  int32_t Sites = 0;       // to - from + 1
  int32_t NetSites = 0;    // L
  int32_t SegSites = 0;    // S
  int32_t Mutations = 0;   // Eta
  GcContent Gc;

  int32_t Haplotypes = 0;
  std::optional<double> Hd;  // n of 2 or more
  std::optional<double> VarHd;

  std::optional<double> Pi;     // n of 2 or more and L above 0
  std::optional<double> VarPi;  // n of 2 or more and L above 0
  std::optional<double> K;      // n of 2 or more
  // From Eta with `UseMutations`, else from S; n of 2 or more (and L above 0 per site).
  std::optional<double> ThetaPerSite;
  std::optional<double> ThetaPerSequence;

  bool TestsComputed = false;  // n of 4 or more
  NeutralityValue TajimaD;
  NeutralityValue FuLiDStar;
  NeutralityValue FuLiFStar;

  std::optional<FsResult> Fs;  // k above 0 and n of 2 or more

  std::optional<CodonChanges> Changes;  // none without coding sites

  template <class V>
  void Visit(V& v) const {
    v.Bool("use_mutations", UseMutations);
    v.Integer("sequences", SampleSize);
    v.Integer("sites", Sites);
    v.Integer("net_sites", NetSites);
    v.Integer("segregating_sites", SegSites);
    v.Integer("mutations", Mutations);
    Gc.Visit(v);
    v.Integer("haplotypes", Haplotypes);
    v.Optional("hd", Hd);
    v.Optional("var_hd", VarHd);
    v.Optional("k", K);
    v.Optional("pi", Pi);
    v.Optional("var_pi", VarPi);
    v.Optional("theta_sequence", ThetaPerSequence);
    v.Optional("theta_site", ThetaPerSite);
    v.Optional("tajima_d", TajimaD.Value);
    v.Text("significance", MarkText(TajimaD.Mark));
    v.Optional("d_star", FuLiDStar.Value);
    v.Text("d_star_significance", MarkText(FuLiDStar.Mark));
    v.Optional("f_star", FuLiFStar.Value);
    v.Text("f_star_significance", MarkText(FuLiFStar.Mark));
    VisitFs(v, Fs);
    v.OptionalInteger("synonymous_mutations",
                      Changes ? std::optional<int64_t>(Changes->Synonymous) : std::nullopt);
    v.OptionalInteger("nonsynonymous_mutations",
                      Changes ? std::optional<int64_t>(Changes->Nonsynonymous) : std::nullopt);
  }
};

// The result of "DNA Polymorphism Analysis": the region and its statistics.
struct OverviewResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  OverviewStats Stats;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    Stats.Visit(v);
  }
};

// Over from..to of the first selection (classes and diversities filled).
[[nodiscard]] OverviewStats ComputeOverview(const Selection& sel, int32_t from, int32_t to,
                                            bool use_mutations, const PolyGauge& gauge = {});

}  // namespace ovelt
