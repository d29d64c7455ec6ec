// NBRF/PIR: records of a header ">DL;name", a free title line, and sequence lines that end
// with "*". Everything after the "*" up to the next line that begins with ">" is skipped; the end
// of the file also ends a sequence. A ">" met in a sequence line starts the next header there, as
// in FASTA.

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

// The name runs from the fifth character (behind ">DL;") to the first blank or tab.
std::string NbrfName(std::string_view header) {
  if (header.size() <= 4) return {};
  const std::string_view rest = header.substr(4);
  const size_t end = rest.find_first_of(" \t");
  return std::string(rest.substr(0, end));
}

}  // namespace

LoadedFile ReadNbrf(LineReader& in, const std::string& path) {
  static const CellTable kTable = MakeCellTable("*>");
  SequentialMatrix builder(path);
  std::string_view line;
  if (!in.Next(line)) throw ReadError(BadFormatText(path));
  std::string name = NbrfName(line);

  for (bool more = true; more;) {
    SequenceCells& cells = builder.Begin(name);
    const MatchRule match = builder.Match();
    WalkState state;
    more = false;
    bool ended = false;  // "*" was met: skip to the next header
    if (in.Next(line)) {  // the title line
      while (in.Next(line)) {
        if (ended) {
          if (line.empty() || line[0] != '>') continue;
          name = NbrfName(line);
          more = true;
          break;
        }
        const WalkResult walk = WalkCells(kTable, line, cells, match, state);
        if (walk.end == WalkEnd::kLineEnd) continue;
        if (walk.end != WalkEnd::kStop) ThrowCellFault(path, walk, builder.current());
        if (line[walk.pos] == '*') {
          ended = true;
          continue;
        }
        name = NbrfName(line.substr(walk.pos));
        more = true;
        break;
      }
    }
    if (!builder.End(in.BytesLeft())) throw ReadError(DataFileErrorText(path, kUnequalLengths));
  }

  LoadedFile out;
  out.FileKind = kNbrf;
  builder.MoveInto(out);
  out.Interleaved = 0;
  return out;
}

}  // namespace ovelt
