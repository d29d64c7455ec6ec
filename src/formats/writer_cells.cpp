#include "formats/writer_cells.h"

namespace ovelt {

CellStyle PlainCellStyle(int16_t nucleotide_type) { return {'N', '-', nucleotide_type == 1}; }

CellStyle MegaCellStyle(int16_t nucleotide_type) { return {'?', '-', nucleotide_type == 1}; }

char WrittenCell(char cell, const CellStyle& style) {
  switch (cell) {
    case '?':
      return style.Missing;
    case '-':
      return style.Gap;
    case 'T':
    case 't':
      return style.Rna ? 'U' : 'T';
    default:
      return cell >= 'a' && cell <= 'z' ? static_cast<char>(cell - 'a' + 'A') : cell;
  }
}

std::string WrittenRow(const SeqMatrix& matrix, int32_t seq, const CellStyle& style) {
  std::string row(matrix.sequence(seq), static_cast<size_t>(matrix.sites()));
  for (char& c : row) c = WrittenCell(c, style);
  return row;
}

void WriteWrapped(WriterLines& out, std::string_view cells, size_t width) {
  for (size_t at = 0; at < cells.size(); at += width) out.Line(cells.substr(at, width));
}

}  // namespace ovelt
