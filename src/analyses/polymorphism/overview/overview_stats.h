#pragma once
// All main statistics of one selection and region at a glance ("DNA Polymorphism Analysis" and
// each row of the multi-domain table): segregating sites and mutations, G+C content,
// haplotypes (Nei 1987), nucleotide diversity with its sampling variance, k, Watterson's theta
// (Watterson 1975) from S or from Eta, Tajima's D (Tajima 1989), Fu and Li's D* and F* (Fu and
// Li 1993), Fu's Fs and Strobeck's S (Fu 1997; Strobeck 1987), and the synonymous and
// nonsynonymous mutations of the coding sites. Statistics that a sample cannot give are marked
// not determined: haplotype diversity below 2 sequences, the tests below 4 sequences or without
// polymorphism, Fs with k of 0.

#include <cstdint>
#include <string>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "analyses/polymorphism/overview/overview_codon_changes.h"
#include "analyses/polymorphism/overview/overview_gc.h"
#include "core/selection.h"

namespace ovelt {

struct NeutralityValue {
  bool Determined = false;
  double Value = 0.0;
  std::string Mark = "n.d.";  // the significance mark ("n.d." when none can be given)
};

struct OverviewStats {
  bool UseMutations = false;
  int32_t SampleSize = 0;  // n
  int32_t Sites = 0;       // to - from + 1
  int32_t NetSites = 0;    // L
  int32_t SegSites = 0;    // S
  int32_t Mutations = 0;   // Eta
  GcContent Gc;

  bool HaplotypesDetermined = false;  // n of 2 or more
  int32_t Haplotypes = 0;
  double Hd = 0.0;
  double VarHd = 0.0;

  double Pi = 0.0;
  bool VarPiDetermined = false;  // n of 2 or more and L above 0
  double VarPi = 0.0;
  double K = 0.0;
  // From Eta with `UseMutations`, else from S.
  double ThetaPerSite = 0.0;
  double ThetaPerSequence = 0.0;

  bool TestsComputed = false;  // n of 4 or more
  NeutralityValue TajimaD;
  NeutralityValue FuLiDStar;
  NeutralityValue FuLiFStar;

  bool FsDetermined = false;  // k above 0
  double Fs = 0.0;
  double StrobeckS = 0.0;
  double PEqual = 0.0;

  CodonChanges Changes;
};

// Over from..to of the first selection (classes and diversities filled).
[[nodiscard]] OverviewStats ComputeOverview(const Selection& sel, int32_t from, int32_t to,
                                            bool use_mutations, const PolyGauge& gauge = {});

}  // namespace ovelt
