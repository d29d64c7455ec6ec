#pragma once
// The MATRIX of a NEXUS DATA or CHARACTERS block.
//
// Cells: A, C, G, T are stored; U becomes T; the gap symbol and "-" become "-"; the missing
// symbol, N and "?" become "?"; the matching symbol takes the first row's cell (in the first
// row it is error 4); blanks, tabs and comments are skipped; any other character is error 64.
// Lower case reads as upper case.
//
// Rows: a sequential matrix follows the NEXUS standard, in which a row ends after NCHAR cells
// and may run over several lines (SeaView writes rows of 60 cells a line). A row that stops
// short at the end of a line, where the next line begins with something that is not a cell
// (the next row's name), is error 65 for that row, as a row with too few characters is. In an
// interleaved matrix each line holds a piece of one row, the rows come in the same order in
// every block and the counter wraps at NTAX; a line of a later block whose first word is not
// that row's name and that holds cells only has no name (PhyML writes later blocks so).

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/seq_matrix.h"
#include "formats/nexus_lexer.h"

namespace ovelt {

struct NexusMatrixShape {
  int32_t ntax = 0;
  int32_t nchar = 0;
  bool interleaved = false;
  bool row_names = true;  // false for FORMAT NOLABELS: the rows carry no names
  char gap = '-';
  char missing = '?';
  char match = '\0';     // '\0': no matching symbol
  int block_error = 71;  // code of a matrix with more than it should hold
  // Told now and then of a part [from, to) of the content that is read (empty: nobody).
  std::function<void(size_t, size_t)> read;
};

struct NexusMatrix {
  std::vector<NexusToken> names;  // per row, in file order (empty without row names)
  SeqMatrix cells;                // NCHAR stored cells per row, NTAX rows in file order
};

// Reads the content of a MATRIX command (from after the word to before its ";"). Throws
// NexusFault.
[[nodiscard]] NexusMatrix ReadNexusMatrix(std::string_view content, const NexusMatrixShape& shape);

}  // namespace ovelt
