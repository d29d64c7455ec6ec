#include "formats/mega_writer.h"

#include "formats/writer_cells.h"
#include "formats/writer_names.h"

namespace ovelt {

void WriteMega(const ActiveData& ad, const WriterStamp& stamp, WriterLines& out) {
  const CellStyle style = MegaCellStyle(ad.Format.NucleotideType);
  out.Line("#MEGA ");
  out.Line("TITLE: " + GeneratedByText(stamp));
  for (int32_t s = 1; s <= ad.NumSeqs; ++s) {
    out.Line("#" + CleanName(ad.IncNames[static_cast<size_t>(s)], NameMode::kNexusMega));
    WriteWrapped(out, WrittenRow(ad.IncMatrix, s, style), 70);
    out.SequenceDone(s, ad.NumSeqs);
  }
  out.Finish();
}

}  // namespace ovelt
