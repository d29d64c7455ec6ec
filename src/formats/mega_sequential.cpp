// Sequential MEGA: each sequence opens with its "#name" line and runs up to the next one.
//
// Cells that stand on the "#name" line itself, behind the name and a blank, belong to the
// sequence: MEGA writes short sequences that way, and a reading that dropped them would load
// such a file with part of its sites silently missing.
//
// Command statements ("!Label ...;", "!Domain ...;", from "!" up to the next ";", possibly over
// several lines) are MEGA syntax and are skipped wherever they stand, as are comments in
// quotation marks.

#include "core/active_data.h"
#include "formats/cell_faults.h"
#include "formats/mega_rows.h"
#include "formats/read_messages.h"
#include "formats/sequential_matrix.h"

namespace ovelt {

void ReadMegaSequential(LineReader& in, std::string_view first_row, const std::string& path,
                        const CellTable& table, LoadedFile& out) {
  SequentialMatrix builder(path);
  SequenceCells* cells = nullptr;
  MatchRule match;
  WalkState state;

  auto take_line = [&](std::string_view line) {
    std::string_view text = line;
    if (!state.open() && IsMegaRow(line)) {
      if (cells != nullptr && !builder.End(in.BytesLeft())) {
        throw ReadError(DataFileErrorText(path, kUnequalLengths));
      }
      MegaRow row = SplitMegaRow(line);
      cells = &builder.Begin(row.name);
      match = builder.Match();
      text = row.rest;
    }
    const WalkResult walk = WalkCells(table, text, *cells, match, state);
    if (walk.end != WalkEnd::kLineEnd) ThrowCellFault(path, walk, builder.current());
  };

  take_line(first_row);
  std::string_view line;
  while (in.Next(line)) take_line(line);
  if (!builder.End(in.BytesLeft())) throw ReadError(DataFileErrorText(path, kUnequalLengths));

  builder.MoveInto(out);
  out.Interleaved = 0;
  out.BlockLength = 60;
}

}  // namespace ovelt
