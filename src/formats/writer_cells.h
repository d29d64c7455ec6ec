#pragma once
// Cells as the writers put them in a file. The matrix holds "A", "C", "G", "T", "-" and "?";
// a file shows gaps and missing data with the symbols of its format, in upper case, and "U"
// for "T" when the sequences are RNA (`NucleotideType` 1).

#include <cstdint>
#include <string>
#include <string_view>

#include "core/seq_matrix.h"
#include "formats/writer_lines.h"

namespace ovelt {

struct CellStyle {
  char Missing = 'N';
  char Gap = '-';
  bool Rna = false;
};

// FASTA, NBRF and PHYLIP: "?" is written "N".
[[nodiscard]] CellStyle PlainCellStyle(int16_t nucleotide_type);
// MEGA keeps "?".
[[nodiscard]] CellStyle MegaCellStyle(int16_t nucleotide_type);

[[nodiscard]] char WrittenCell(char cell, const CellStyle& style);

// The cells of sequence `seq` as written.
[[nodiscard]] std::string WrittenRow(const SeqMatrix& matrix, int32_t seq, const CellStyle& style);

// Writes `cells` in lines of `width` (the last one shorter); nothing for no cells.
void WriteWrapped(WriterLines& out, std::string_view cells, size_t width);

}  // namespace ovelt
