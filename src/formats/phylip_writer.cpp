#include "formats/phylip_writer.h"

#include <string_view>

#include "formats/writer_cells.h"
#include "formats/writer_names.h"

namespace ovelt {
namespace {

constexpr size_t kGroup = 10;
constexpr size_t kGroupsPerLine = 6;

// Up to six groups of ten cells from `cells`, blank-separated.
std::string GroupedLine(std::string_view cells) {
  std::string line;
  for (size_t at = 0; at < cells.size(); at += kGroup) {
    if (at > 0) line += ' ';
    line += cells.substr(at, kGroup);
  }
  return line;
}

}  // namespace

void WritePhylip(const ActiveData& ad, WriterLines& out) {
  const CellStyle style = PlainCellStyle(ad.Format.NucleotideType);
  constexpr size_t kPerLine = kGroup * kGroupsPerLine;
  out.Line(std::to_string(ad.NumSeqs) + " " + std::to_string(ad.NumSites));
  for (int32_t s = 1; s <= ad.NumSeqs; ++s) {
    const std::string cells = WrittenRow(ad.IncMatrix, s, style);
    const std::string_view view(cells);
    out.Line(PhylipNameField(ad.IncNames[static_cast<size_t>(s)]) +
             GroupedLine(view.substr(0, kPerLine)));
    for (size_t at = kPerLine; at < view.size(); at += kPerLine)
      out.Line(GroupedLine(view.substr(at, kPerLine)));
    out.SequenceDone(s, ad.NumSeqs);
  }
  out.Finish();
}

}  // namespace ovelt
