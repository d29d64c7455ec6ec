// The layout of a PHYLIP matrix: sequential (each sequence complete before the next, perhaps
// wrapped over several lines) or interleaved (blocks holding a piece of every sequence).
//
// The first data line holds a ten-character name and n cells. n equal to the number of sites
// means one line per sequence; n above it is an error. Below it, the next line decides: when its
// first ten characters could all be sequence ("N A T U C G - ?" or tab) it continues the first
// sequence, otherwise it starts with a name and the file is interleaved.
//
// That test takes blanks for part of a name, so sequential files whose continuation lines are
// indented or written in blank-separated groups of bases would read as interleaved. PHYLIP itself
// reads such files as sequential, so when the test says interleaved the counts get the last
// word: if every sequence, read the sequential way (its first line from the eleventh character
// on, then whole lines), ends exactly at a line end with the number of sites, the file is
// sequential. Genuinely interleaved files fail this at once, because the rows that follow the
// first carry names and the block ends do not add up.

#include <string_view>

#include "formats/phylip_parts.h"
#include "formats/read_file.h"
#include "formats/read_messages.h"
#include "formats/sequence_cells.h"

namespace ovelt {
namespace {

bool CouldBeSequence(char c) {
  switch (c) {
    case 'N': case 'A': case 'T': case 'U': case 'C': case 'G': case '-': case '?': case '\t':
    case 'n': case 'a': case 't': case 'u': case 'c': case 'g':
      return true;
    default:
      return false;
  }
}

bool OpensWithName(std::string_view line) {
  const std::string_view field = line.substr(0, PhylipNameBytes(line));
  for (char c : field) {
    if (!CouldBeSequence(c)) return true;
  }
  return false;
}

// True when every sequence, read the sequential way, has exactly the number of sites.
bool SequentialCountsFit(LineReader& in, const PhylipHeader& header) {
  in.Rewind();
  const auto sites = static_cast<size_t>(header.sites);
  std::string_view line;
  for (int32_t s = 1; s <= header.seqs; ++s) {
    if (!NextNonEmptyLine(in, line)) return false;
    size_t count = CountNonBlank(PhylipCells(line));
    while (count < sites) {
      if (!in.Next(line)) return false;
      count += CountNonBlank(line);
    }
    if (count != sites) return false;
  }
  return true;
}

}  // namespace

PhylipLayout DecidePhylipLayout(LineReader& in, const PhylipHeader& header,
                                const std::string& path) {
  PhylipLayout layout;
  std::string_view line;
  if (!NextNonEmptyLine(in, line)) return layout;
  const size_t n = CountNonBlank(PhylipCells(line));
  const auto sites = static_cast<size_t>(header.sites);
  if (n == sites) return layout;
  if (n > sites) throw ReadError(PhylipErrorText(path, kPhylipInvalidSites, true));
  if (!NextNonEmptyLine(in, line) || !OpensWithName(line)) return layout;
  if (SequentialCountsFit(in, header)) return layout;
  layout.interleaved = true;
  layout.block_length = static_cast<int32_t>(n);
  return layout;
}

}  // namespace ovelt
