#pragma once
// The text of a DNA Polymorphism result: fixed-format lines, CR LF line ends, every number
// through a `Format` mask. The report head comes first and is the caller's (ReportHead).

#include <cstdint>
#include <optional>
#include <string>

#include "analyses/polymorphism/diversity/dna_polymorphism.h"

namespace ovelt {

// " Number of polymorphic (segregating) sites, S: " and " Total number of mutations, Eta: ";
// with the haplotypes (the DNA polymorphism report) also those and Pi; the other reports that
// print this block stop after the Eta line. Hd takes four decimals from 100 haplotypes on, three
// below.
[[nodiscard]] std::string PolymorphismFirstBlock(
    const PolyStats& stats, const std::optional<HaplotypeStats>& haplotypes = std::nullopt);

[[nodiscard]] std::string SamplingVarianceLines(const PiSamplingVariance& v);
[[nodiscard]] std::string JukesCantorLine(double pi_jc);
[[nodiscard]] std::string ThetaVarianceBlock(const ThetaVariances& v);
[[nodiscard]] std::string PairwiseDeletionText(const PairwiseDeletion& r, int16_t gaps_in_sets);

// Everything after the report head: the blocks of the result in their order, and the sliding
// window's settings when the window ran.
[[nodiscard]] std::string DnaPolReportBody(const DnaPolResult& result, int16_t gaps_in_sets);

}  // namespace ovelt
