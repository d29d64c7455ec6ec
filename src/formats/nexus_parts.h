#pragma once
// The pieces of the NEXUS reader, each reading one kind of command or block from the commands
// that the first pass cut out. All of them throw NexusFault.

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "formats/nexus_blocks.h"
#include "formats/nexus_extras.h"
#include "formats/nexus_lists.h"

namespace ovelt {

// The FORMAT command of a DATA or CHARACTERS block.
struct NexusFormat {
  bool rna = false;
  char gap = '-';
  char missing = '?';
  char match = '\0';  // '\0': no MATCHCHAR
  bool interleaved = false;
  bool row_names = true;
};

// FORMAT keys: DATATYPE (DNA, RNA, NUCLEOTIDE as DNA, PROTEIN refused with code 9, other types
// left to the matrix), MISSING, GAP, MATCHCHAR, INTERLEAVE (alone, =YES or =NO), LABELS or
// NOLABELS; TRANSPOSE is refused; other keys of the standard (SYMBOLS, EQUATE, ...) are passed
// over with their values. Code 19 for a key without its value.
[[nodiscard]] NexusFormat ReadNexusFormat(const NexusCommand& command);

// The DATATYPE of a block's FORMAT in upper case, "DNA" when none is given; no fault raised.
[[nodiscard]] std::string NexusDataType(const NexusRawBlock& block);
// The value of `key` in a command such as TITLE or LINK TAXA = X2 ("" when absent).
[[nodiscard]] std::string NexusCommandValue(const NexusRawBlock& block, const char* command,
                                            const char* key = nullptr);

// NTAX and NCHAR of a DIMENSIONS command; nullopt for a count that is not given. A count that
// is not a whole number in range is code 2 (NTAX, 1..32767) or 3 (NCHAR, 1..2^31-1).
struct NexusDimensions {
  std::optional<int32_t> ntax;
  std::optional<int32_t> nchar;
};
[[nodiscard]] NexusDimensions ReadNexusDimensions(const NexusCommand& command);

// The names of TAXLABELS, in order.
[[nodiscard]] std::vector<NexusToken> ReadTaxLabels(const NexusCommand& command);
// Character labels from CHARLABELS (in order, or "number name" pairs separated by ",") or
// CHARSTATELABELS ("number name / states" separated by ","), into labels[1..nchar]. Code 6
// for a number outside 1..nchar or more labels than characters.
void ReadCharLabels(const NexusCommand& command, int32_t nchar, std::vector<std::string>& labels);

// What the SETS and CODONS blocks may name.
struct NexusNames {
  int32_t ntax = 0;
  int32_t nchar = 0;
  std::vector<std::string> taxon_keys;  // 1..ntax, NexusNameKey of each name
  std::vector<std::string> char_keys;   // 1..nchar, "" where a character has no label; empty
                                        // when the file labels no character
  // Number of each key (the first of a repeated one), built from the two lists above.
  std::unordered_map<std::string, int32_t> taxon_numbers;
  std::unordered_map<std::string, int32_t> char_numbers;
  void Index();
};

// A SETS block: TAXSET into extras.SequenceSets, CHARSET into extras.Domains, any other
// statement kept in `kept`.
void ReadSetsBlock(const NexusRawBlock& block, const NexusNames& names, NexusExtras& extras,
                   std::vector<std::string>& kept, std::string_view text);

// A CODONS block: CODONPOSSET (or CODPOSSET) into extras.CodonPosition and CodingAssigned,
// CODESET and GENCODE into GeneticCodeIndex (warning for an unknown name); other statements
// kept.
void ReadCodonsBlock(const NexusRawBlock& block, const NexusNames& names, NexusExtras& extras,
                     std::vector<std::string>& kept, std::string_view text);

// The program's own block: Genome, ChromosomalLocation and Oveltversion.
void ReadOwnBlock(const NexusRawBlock& block, NexusExtras& extras);

// The CODONUSAGE block: its tables, checked against the file's genetic code.
void ReadCodonUsageBlock(const NexusRawBlock& block, NexusExtras& extras);

// The text of a command as it stands in the file.
[[nodiscard]] std::string NexusCommandText(std::string_view text, const NexusCommand& command);

}  // namespace ovelt
