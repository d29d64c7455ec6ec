#include "formats/nbrf_writer.h"

#include <string_view>

#include "formats/writer_cells.h"
#include "formats/writer_names.h"

namespace ovelt {

void WriteNbrf(const ActiveData& ad, const WriterStamp& stamp, WriterLines& out) {
  const CellStyle style = PlainCellStyle(ad.Format.NucleotideType);
  const std::string title = GeneratedByText(stamp);
  for (int32_t s = 1; s <= ad.NumSeqs; ++s) {
    out.Line(">DL;" + CleanName(ad.IncNames[static_cast<size_t>(s)], NameMode::kPlain));
    out.Line("Sequence: " + std::to_string(s) + " " + title);
    const std::string cells = WrittenRow(ad.IncMatrix, s, style);
    // Every line of 70 but the last; the terminator "*" stands right behind the last cell.
    const size_t last_line = cells.empty() ? 0 : (cells.size() - 1) / 70 * 70;
    WriteWrapped(out, std::string_view(cells).substr(0, last_line), 70);
    out.Line(cells.substr(last_line) + "*");
    out.SequenceDone(s, ad.NumSeqs);
  }
  out.Finish();
}

}  // namespace ovelt
