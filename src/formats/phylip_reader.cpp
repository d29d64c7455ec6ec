// PHYLIP: a first line with the numbers of sequences and sites, then the matrix, sequential or
// interleaved. A sequence's first line begins with a name field of ten characters (the name may
// hold blanks) and the cells follow from the eleventh character on; lines that continue a
// sequence, and the rows of later interleaved blocks, hold cells only.
//
// A sequence that runs past the number of sites is "Invalid number of sites" when the number
// given is the cause (the first sequence, or every sequence alike), and "Sequences are of unequal
// lengths" when the sequences disagree among themselves.

#include <string>
#include <string_view>

#include "core/active_data.h"
#include "formats/cell_rules.h"
#include "formats/interleaved_matrix.h"
#include "formats/phylip_parts.h"
#include "formats/read_messages.h"
#include "formats/readers.h"
#include "formats/sequential_matrix.h"

namespace ovelt {
namespace {

const CellTable& PhylipTable() {
  static const CellTable table = MakeCellTable();
  return table;
}

[[noreturn]] void ThrowPhylip(const std::string& path, const std::string& sentence) {
  throw ReadError(PhylipErrorText(path, sentence));
}

// Reports a walk that stopped on a fault in sequence `seq`; `header_is_cause` picks the
// sentence for a sequence that runs past the number of sites.
void CheckWalk(const WalkResult& walk, int seq, bool header_is_cause, const std::string& path) {
  switch (walk.end) {
    case WalkEnd::kLineEnd:
    case WalkEnd::kStop:
      return;
    case WalkEnd::kRefused:
      ThrowPhylip(path, PhylipInvalidCharacterSentence(walk.ch, seq));
    case WalkEnd::kDotInFirst:
      ThrowPhylip(path, kPhylipDotInFirst);
    case WalkEnd::kFull:
      ThrowPhylip(path, header_is_cause ? kPhylipInvalidSites : kUnequalLengths);
  }
}

void ReadSequential(LineReader& in, const PhylipHeader& header, const std::string& path,
                    LoadedFile& out) {
  SequentialMatrix builder(path, header.sites);
  std::string_view line;
  for (int s = 1; s <= header.seqs; ++s) {
    if (!NextNonEmptyLine(in, line)) ThrowPhylip(path, kPhylipInvalidSequences);
    SequenceCells& cells = builder.Begin(PhylipName(line));
    const MatchRule match = builder.Match();
    WalkState state;
    CheckWalk(WalkCells(PhylipTable(), PhylipCells(line), cells, match, state), s, s == 1, path);
    while (!cells.full()) {
      if (!in.Next(line)) ThrowPhylip(path, s == 1 ? kPhylipInvalidSites : kUnequalLengths);
      CheckWalk(WalkCells(PhylipTable(), line, cells, match, state), s, s == 1, path);
    }
    if (!builder.End(in.BytesLeft())) ThrowPhylip(path, kUnequalLengths);
  }
  builder.MoveInto(out);
}

void ReadInterleaved(LineReader& in, const PhylipHeader& header, const std::string& path,
                     LoadedFile& out) {
  InterleavedMatrix rows(path, static_cast<size_t>(header.sites));
  WalkState state;
  std::string_view line;
  // The first block: names and the first cells.
  for (int s = 1; s <= header.seqs; ++s) {
    if (!NextNonEmptyLine(in, line)) ThrowPhylip(path, kPhylipInvalidSequences);
    rows.Add(PhylipName(line));
    CheckWalk(WalkCells(PhylipTable(), PhylipCells(line), rows.cells(s), InterleavedMatrix::Match(s),
                        state),
              s, false, path);
  }

  const auto sites = static_cast<size_t>(header.sites);
  auto complete = [&] {
    for (int s = 1; s <= header.seqs; ++s) {
      if (rows.cells(s).count() != sites) return false;
    }
    return true;
  };
  auto same_lengths = [&] {
    for (int s = 2; s <= header.seqs; ++s) {
      if (rows.cells(s).count() != rows.cells(1).count()) return false;
    }
    return true;
  };

  // Later blocks: one row per sequence, in order, until every sequence is complete.
  bool more = true;
  while (more && !complete()) {
    const bool even = same_lengths();
    for (int s = 1; s <= header.seqs; ++s) {
      if (!NextNonEmptyLine(in, line)) {
        more = false;
        break;
      }
      CheckWalk(WalkCells(PhylipTable(), line, rows.cells(s), InterleavedMatrix::Match(s), state), s,
                s == 1 && even, path);
    }
  }
  if (!complete()) ThrowPhylip(path, same_lengths() ? kPhylipInvalidSites : kUnequalLengths);
  rows.MoveInto(out);
}

}  // namespace

LoadedFile ReadPhylip(LineReader& in, const std::string& path) {
  std::string_view line;
  const std::string first = in.Next(line) ? std::string(line) : std::string();
  const PhylipHeader header = ParsePhylipHeader(first, path);
  // The layout test reads ahead; the matrix is then read from the line after the header.
  in.Mark();
  const PhylipLayout layout = DecidePhylipLayout(in, header, path);
  in.Rewind();
  in.Unmark();

  LoadedFile out;
  if (layout.interleaved) {
    ReadInterleaved(in, header, path, out);
    out.Interleaved = 1;
    out.BlockLength = layout.block_length;
  } else {
    ReadSequential(in, header, path, out);
    out.Interleaved = 0;
    out.BlockLength = 60;
  }
  out.FileKind = kPhylip;
  return out;
}

}  // namespace ovelt
