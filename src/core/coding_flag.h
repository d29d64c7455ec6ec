#pragma once
// The coding tables derived from the coding map: the translation table of the current genetic
// code, the two-character display code of each site (`CodingFlag`) and `LastCodingSite`.
//
// `CodingFlag` comes from one walk along the sites with the cells of the first included
// sequence. A noncoding site reads "4n". A codon is a run of positions 1, 2, 3 in that order,
// not necessarily on adjacent sites (noncoding sites may lie between, as an intron does); its
// three sites read a shading digit, "1" or "2" alternating from codon to codon, and the first,
// second and third letter of the amino acid's three-letter name ("Ala" gives "1A", "1l", "1a"),
// or "?" when a cell of the codon is a gap or missing. A coding site that completes no codon
// reads "3#".

#include "core/active_data.h"

namespace ovelt {

inline const std::string kNoncodingFlag = "4n";
inline const std::string kIncompleteCodonFlag = "3#";

// Rebuilds `GeneticCode`, `CodingFlag` and `LastCodingSite`; sizes `CodonPosition` to
// `NumSites` + 1 first if it is not (new sites are noncoding).
void RebuildCodingTables(ActiveData& ad);

}  // namespace ovelt
