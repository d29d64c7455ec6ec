#pragma once
// Genetic codes: the ten translation tables the workbench knows, their names in the dialog, in
// NEXUS files and in table files, the three-letter amino-acid names, and the texts of the
// genome attributes (chromosomal location, genome state, nucleotide type).
//
// Codons are indexed with the nucleotide ranks T = 1, C = 2, A = 3, G = 4:
// index = (a - 1) * 16 + (b - 1) * 4 + c, so TTT is 1 and GGG is 64.

#include <array>
#include <cstdint>
#include <string>

namespace ovelt {

inline constexpr int16_t kGeneticCodeCount = 10;

// One translation table: one-letter amino acids by codon index 1..64 ("*" for stop).
struct GeneticCodeTable {
  std::array<char, 65> AminoAcid{};  // index 0 unused
  // 1 for the nuclear codes (indices 1, 8, 9), 0 for the organelle ones.
  int16_t NuclearCodeFlag = 1;

  // '\0' for an index outside 1..64.
  [[nodiscard]] char Translate(int index) const {
    return index >= 1 && index <= 64 ? AminoAcid[static_cast<size_t>(index)] : '\0';
  }
  [[nodiscard]] bool IsStop(int index) const { return Translate(index) == '*'; }
};

// Rank of a nucleotide: T (or U) 1, C 2, A 3, G 4; 0 for any other letter. Upper case only,
// as cells are stored.
[[nodiscard]] int NucleotideRank(char cell);

// Codon index 1..64 of three cells, or 0 when any of them is not a nucleotide.
[[nodiscard]] int CodonIndex(char a, char b, char c);

// The table of code `index` (1..10). An index outside that range, such as the 0 that a file
// without a genetic code leaves, reads as the nuclear universal code.
[[nodiscard]] GeneticCodeTable BuildGeneticCode(int16_t index);

// The three columns of the code table; "" for an index outside 1..10.
[[nodiscard]] const std::string& GeneticCodeText(int16_t index);        // "Nuclear Universal"
[[nodiscard]] const std::string& GeneticCodeNexusName(int16_t index);   // "Universal"
[[nodiscard]] const std::string& GeneticCodeTableName(int16_t index);   // "UNIVERSAL.EXT"

// Index of a code from any of its names (dialog text, NEXUS name, table name, or the aliases
// "UNIVNUC" and "UNIVmtDNA"), without regard to case or surrounding blanks. A name that equals
// a column wins; otherwise the first code with a column that begins with the name. 0 when
// nothing matches or the name is empty.
[[nodiscard]] int16_t GeneticCodeIndexFromName(const std::string& name);

// "Ala", "Cys", ... "Tyr" for the one-letter codes, "Stop" for "*"; "" for anything else.
[[nodiscard]] const std::string& AminoAcidThreeLetter(char one_letter);

// Chromosomal location, codes 0..7: "Autosome", "X chromosome", ... and the NEXUS values
// "Autosome", "Xchromosome", ... ("" for a code outside 0..7).
inline constexpr int16_t kChromosomalLocationCount = 8;
[[nodiscard]] const std::string& ChromosomalLocationText(int16_t code);
[[nodiscard]] const std::string& ChromosomalLocationNexusValue(int16_t code);
// Code of a NEXUS value, without regard to case; -1 when unknown.
[[nodiscard]] int16_t ChromosomalLocationFromNexusValue(const std::string& value);

// "Diploid" (0) or "Haploid" (1); "DNA" (0) or "RNA" (1). "" for other values.
[[nodiscard]] const std::string& GenomeStateText(int16_t state);
[[nodiscard]] const std::string& NucleotideTypeText(int16_t type);

}  // namespace ovelt
