// FASTA: records of a header line ">name rest" and the sequence lines below it.
//
// The name is the first word behind ">" (leading blanks and tabs skipped); the rest of the header
// is not kept. Sequence lines are walked by the cell rules and a ">" ends the walk: when it opens
// a line (as in ">a" followed at once by ">b", an empty sequence) or stands inside one, the text
// from the ">" on is the next header.

#include <string>
#include <string_view>

#include "core/active_data.h"
#include "formats/cell_faults.h"
#include "formats/cell_rules.h"
#include "formats/read_messages.h"
#include "formats/readers.h"
#include "formats/sequential_matrix.h"

namespace ovelt {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// The first word behind the ">" that opens `header`.
std::string FastaName(std::string_view header) {
  size_t from = 1;
  while (from < header.size() && IsBlank(header[from])) ++from;
  size_t to = from;
  while (to < header.size() && !IsBlank(header[to])) ++to;
  return std::string(header.substr(from < header.size() ? from : header.size(), to - from));
}

}  // namespace

LoadedFile ReadFasta(LineReader& in, const std::string& path) {
  static const CellTable kTable = MakeCellTable(">");
  SequentialMatrix builder(path);
  std::string_view line;
  if (!in.Next(line)) throw ReadError(BadFormatText(path));
  std::string name = FastaName(line);

  for (bool more = true; more;) {
    SequenceCells& cells = builder.Begin(name);
    const MatchRule match = builder.Match();
    WalkState state;
    more = false;
    while (in.Next(line)) {
      const WalkResult walk = WalkCells(kTable, line, cells, match, state);
      if (walk.end == WalkEnd::kLineEnd) continue;
      if (walk.end != WalkEnd::kStop) ThrowCellFault(path, walk, builder.current());
      name = FastaName(line.substr(walk.pos));
      more = true;
      break;
    }
    if (!builder.End(in.BytesLeft())) throw ReadError(DataFileErrorText(path, kUnequalLengths));
  }

  LoadedFile out;
  out.FileKind = kFasta;
  builder.MoveInto(out);
  out.Interleaved = 0;
  out.BlockLength = 60;
  return out;
}

}  // namespace ovelt
