#pragma once
// The differentiation statistics of a partition of sequences into populations, from the
// haplotype counts of each population and the run's tables:
//   within each population: Hi = (1 - sum f^2) n/(n - 1); Ki, Ki*, Zi, Zi* the means over its
//   pairs of the differences d, ln(1 + d), the rank of d and ln(rank);
//   weighted by w = n/N: Hs, Ks, Ks*, Zs, Zs*; over all sequences as one: Ht, Kt, Kt*, Zt, Zt*;
//   Hst = 1 - Hs/Ht, Kst, Kst*, Zst, Zst* likewise (Hudson, Boos and Kaplan 1992);
//   Snn, the mean share of nearest neighbours found in the same population (Hudson 2000);
//   Gst = (HT - HS)/HT of the haplotype frequencies, averaged over populations (Nei 1973);
//   Kxy, Dxy = Kxy/L, Da; DeltaSt and GammaSt (Nei 1982); Nst on Jukes and Cantor distances
//   (Lynch and Crease 1990) and Fst on d (Hudson, Slatkin and Maddison 1992), both B/(B + W);
//   the chi-square of the population by haplotype table.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "analyses/divergence/gene_flow/flow_tables.h"

namespace ovelt {

// The universe of a test: its tables read by every partition of its sequences.
struct FlowUniverse {
  const FlowTables* Tables = nullptr;
  DistanceRanks Ranks;
  std::vector<double> LogDist;  // ln(1 + d), 0 .. MaxDist
  NearestNeighbours Neighbours;
  int32_t Sites = 0;  // L
};

[[nodiscard]] FlowUniverse MakeUniverse(const FlowTables& tables,
                                        const std::vector<HaplotypeCounts>& groups, int32_t sites);

// The counts of the haplotypes of some sequences, by haplotype.
[[nodiscard]] HaplotypeCounts CountHaplotypes(const FlowTables& tables,
                                              const std::vector<int32_t>& sequences);
[[nodiscard]] HaplotypeCounts Pooled(const std::vector<HaplotypeCounts>& groups);

struct GroupMeans {
  int32_t N = 0;
  int32_t Haplotypes = 0;
  double H = 0.0, K = 0.0, KLog = 0.0, Z = 0.0, ZLog = 0.0;
  double Pi = 0.0;             // K / L
  std::optional<double> PiJC;  // mean Jukes and Cantor distance of the pairs that have one
};
// Without `jukes_cantor` PiJC is left out (a replicate of the permutation test needs none).
[[nodiscard]] GroupMeans MeansOf(const FlowUniverse& u, const HaplotypeCounts& group,
                                 bool jukes_cantor = true);

// Hs, Ks, Ks*, Zs, Zs*, Snn: the statistics of the permutation test, in that order.
using TestedValues = std::array<double, 6>;
[[nodiscard]] TestedValues TestedStatistics(const FlowUniverse& u,
                                            const std::vector<HaplotypeCounts>& groups);

struct Differentiation {
  std::vector<GroupMeans> Groups;
  GroupMeans Total;
  double Hs = 0.0, Ks = 0.0, KsLog = 0.0, Zs = 0.0, ZsLog = 0.0, Snn = 0.0;
  std::optional<double> Hst, Kst, KstLog, Zst, ZstLog;
  double ChiSquare = 0.0;
  int32_t Df = 0;
  double ChiSquareP = 1.0;
  std::optional<double> Gst;
  double Kxy = 0.0, Dxy = 0.0, Da = 0.0;
  double PiS = 0.0, PiTCorrected = 0.0, DeltaSt = 0.0;
  std::optional<double> GammaSt;
  double Nst = 0.0, Fst = 0.0;
};
[[nodiscard]] Differentiation Differentiate(const FlowUniverse& u,
                                            const std::vector<HaplotypeCounts>& groups);

}  // namespace ovelt
