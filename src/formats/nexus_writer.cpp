#include "formats/nexus_writer.h"

#include "formats/nexus_writer_blocks.h"

namespace ovelt {

void WriteNexusHead(const WriterStamp& stamp, WriterLines& out) {
  out.Line("#NEXUS");
  out.Line("[" + GeneratedByText(stamp) + "]");
}

void WriteNexusOveltBlock(const ActiveData& ad, const std::string& version, WriterLines& out) {
  const FormatAttributes& f = ad.Format;
  const int16_t location =
      f.ChromosomalLocation >= 0 && f.ChromosomalLocation < kChromosomalLocationCount
          ? f.ChromosomalLocation
          : int16_t{0};
  out.Line("BEGIN Ovelt;");
  out.Line("   Genome= " + GenomeStateText(f.GenomeState == 1 ? 1 : 0) + ";");
  out.Line("   ChromosomalLocation= " + ChromosomalLocationNexusValue(location) + ";");
  out.Line("   Oveltversion= " + version + ";");
  out.Line("END;");
}

void WriteNexus(const ActiveData& ad, const WriterStamp& stamp,
                const std::vector<std::string>& codon_usage, WriterLines& out) {
  WriteNexusHead(stamp, out);
  WriteNexusMatrixBlocks(ad, out);
  WriteNexusSetsBlock(ad, out);
  if (HasNexusCodons(ad)) WriteNexusCodonsBlock(ad, out);
  WriteNexusOveltBlock(ad, stamp.Version, out);
  for (const std::string& line : codon_usage) out.Line(line);
  out.Finish();
}

}  // namespace ovelt
