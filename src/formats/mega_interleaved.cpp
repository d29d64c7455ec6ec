// Interleaved MEGA: blocks of "#name cells" rows. The first block names the sequences; a row
// whose name is the first sequence's opens the second block and fixes their number. From then on
// each block repeats the names in the same order, and all rows of a block are as long as its first
// row. Blank lines, comments in quotation marks and command statements ("!Label ...;" lines
// between blocks) may stand anywhere; other text outside a row is not a row of the matrix.

#include "core/active_data.h"
#include "formats/cell_faults.h"
#include "formats/interleaved_matrix.h"
#include "formats/mega_rows.h"
#include "formats/read_messages.h"

namespace ovelt {

void ReadMegaInterleaved(LineReader& in, std::string_view first_row, const std::string& path,
                         const CellTable& table, LoadedFile& out) {
  InterleavedMatrix rows(path);
  int block = 0;          // 0 while the first block is read
  int row = 0;            // index of the current row within its block, from 0
  int current = 0;        // sequence of the current row (0 before the first row)
  size_t row_start = 0;   // cells of the current sequence before this row
  size_t block_length = 0;
  size_t first_block_length = 0;
  WalkState state;
  SequenceCells outside;  // cells outside any row: none may come
  outside.Start(0);

  auto end_row = [&] {
    if (current == 0) return;
    const size_t length = rows.cells(current).count() - row_start;
    if (row == 0) {
      block_length = length;
      if (block == 0) first_block_length = length;
    } else if (length != block_length) {
      throw ReadError(DataFileErrorText(path, kBlocksOfUnequalLengths));
    }
  };

  auto start_row = [&](const std::string& name) {
    end_row();
    if (block == 0) {
      if (rows.count() > 0 && name == rows.name(1)) {
        block = 1;
        row = 0;
        current = 1;
      } else {
        current = rows.Add(name);
        row = current - 1;
      }
    } else {
      if (++row == rows.count()) {
        ++block;
        row = 0;
      }
      current = row + 1;
      if (name != rows.name(current)) throw ReadError(DataFileErrorText(path, kIllegalSequenceName));
    }
    row_start = rows.cells(current).count();
  };

  auto take_line = [&](std::string_view line) {
    const bool carried = state.open();
    std::string_view text = line;
    SequenceCells* target = &outside;
    if (!carried && IsMegaRow(line)) {
      MegaRow split = SplitMegaRow(line);
      start_row(split.name);
      text = split.rest;
      target = &rows.cells(current);
    } else if (carried && current != 0) {
      target = &rows.cells(current);  // the row goes on behind a comment that spans lines
    }
    const MatchRule match =
        target == &outside ? MatchRule{MatchRule::kDefer, nullptr} : InterleavedMatrix::Match(current);
    const WalkResult walk = WalkCells(table, text, *target, match, state);
    if (walk.end == WalkEnd::kLineEnd) return;
    if (target == &outside && walk.end == WalkEnd::kFull) {
      throw ReadError(DataFileErrorText(path, kIllegalSequenceName));
    }
    ThrowCellFault(path, walk, current);
  };

  take_line(first_row);
  std::string_view line;
  while (in.Next(line)) take_line(line);
  end_row();
  // The last block must hold a row for every sequence.
  if (block > 0 && row != rows.count() - 1) {
    throw ReadError(DataFileErrorText(path, kBlocksOfUnequalLengths));
  }

  rows.MoveInto(out);
  out.Interleaved = 1;
  out.BlockLength = static_cast<int32_t>(first_block_length);
}

}  // namespace ovelt
