#pragma once
// The report of "Synonymous and NonSyn. Substitutions" after its head: codons and sites, the
// genetic code and the coding runs of the region, nucleotide diversity and theta by class of
// site, the sites of each sequence, and the stop-codon notice.

#include <string>

#include "analyses/divergence/synonymous/synonymous_compute.h"

namespace ovelt {

// Fewer sequences than this list their sites one line each.
inline constexpr int32_t kMaxSequenceSiteLines = 601;

inline constexpr const char* kStopCodonNotice =
    "Stop codons have been found in the coding region. Ovelt has considered that they could code "
    "for a rare amino acid (the 21st amino acid; for example for Selenocysteine, Secys)";

[[nodiscard]] std::string SynonymousReportBody(const SynonymousResult& result);

}  // namespace ovelt
