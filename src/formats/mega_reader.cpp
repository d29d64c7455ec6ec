// MEGA: a "#MEGA" line, header lines (a title, command statements such as "!Format ...;",
// comments), then the data, whose rows open with "#name". What the layout is (sequential or
// interleaved) and which symbols stand for a match, a gap and missing data, the user says in the
// "MEGA Data File" dialog before the file is read.

#include <cctype>
#include <string>
#include <string_view>

#include "core/active_data.h"
#include "formats/cell_rules.h"
#include "formats/mega_rows.h"
#include "formats/read_messages.h"
#include "formats/readers.h"

namespace ovelt {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// The data start at the first line that opens with "#" (after the "#MEGA" line), with its
// name behind: a "#" alone opens a sequence whose name is empty.
bool OpensData(std::string_view line) { return !line.empty() && line[0] == '#'; }

// True for a header line that declares a matrix of distances ("DataType=Distance", in any
// case, with blanks allowed around "=").
bool DeclaresDistances(std::string_view line) {
  std::string upper(line);
  for (char& c : upper) c = UpperCase(c);
  const std::string_view text(upper);
  for (size_t at = text.find("DATATYPE"); at != std::string_view::npos;
       at = text.find("DATATYPE", at + 1)) {
    size_t i = at + 8;
    while (i < text.size() && IsBlank(text[i])) ++i;
    if (i >= text.size() || text[i] != '=') continue;
    ++i;
    while (i < text.size() && IsBlank(text[i])) ++i;
    if (text.substr(i).starts_with("DISTANCE")) return true;
  }
  return false;
}

}  // namespace

MegaRow SplitMegaRow(std::string_view line) {
  size_t end = 1;
  while (end < line.size() && !IsBlank(line[end])) ++end;
  return {std::string(line.substr(1, end - 1)), line.substr(end)};
}

LoadedFile ReadMega(LineReader& in, const std::string& path, const MegaOptions& options) {
  std::string_view line;
  in.Next(line);  // the "#MEGA" line
  bool distances = false;
  bool has_data = false;
  while (in.Next(line)) {
    if (OpensData(line)) {
      has_data = true;
      break;
    }
    distances = distances || DeclaresDistances(line);
  }
  // Genetic distances carry no sequences: either the header declares them, or no "#name" row
  // follows at all.
  if (distances || !has_data) throw ReadError(DataFileErrorText(path, kMegaDistances));

  const CellTable table =
      MakeMegaCellTable(options.MatchSymbol, options.GapSymbol, options.MissingSymbol);
  LoadedFile out;
  if (options.Layout == 1) {
    ReadMegaInterleaved(in, line, path, table, out);
  } else {
    ReadMegaSequential(in, line, path, table, out);
  }
  out.FileKind = kMega;
  out.HasMegaSymbols = true;
  out.MatchSymbol = options.MatchSymbol;
  out.GapSymbol = options.GapSymbol;
  out.MissingSymbol = options.MissingSymbol;
  return out;
}

}  // namespace ovelt
