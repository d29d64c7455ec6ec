#include "formats/fasta_writer.h"

#include "formats/writer_cells.h"
#include "formats/writer_names.h"

namespace ovelt {

void WriteFasta(const ActiveData& ad, const WriterStamp& stamp, WriterLines& out) {
  const CellStyle style = PlainCellStyle(ad.Format.NucleotideType);
  for (int32_t s = 1; s <= ad.NumSeqs; ++s) {
    std::string head = ">" + CleanName(ad.IncNames[static_cast<size_t>(s)], NameMode::kPlain);
    if (s == 1) {
      head += "   [by Ovelt " + stamp.Version + ", from file: " + stamp.FileName + "     " +
              stamp.Date + "]";
    }
    out.Line(head);
    WriteWrapped(out, WrittenRow(ad.IncMatrix, s, style), 60);
    out.SequenceDone(s, ad.NumSeqs);
  }
  out.Finish();
}

}  // namespace ovelt
