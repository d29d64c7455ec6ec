// The matrix blocks of a NEXUS file: DATA (old version) or TAXA and CHARACTERS.

#include <algorithm>

#include "formats/nexus_writer_blocks.h"
#include "formats/writer_cells.h"
#include "formats/writer_names.h"

namespace ovelt {
namespace {

std::string FormatLine(const FormatAttributes& f) {
  std::string line = "FORMAT";
  line += std::string(" DATATYPE=") + (f.NucleotideType == 1 ? "RNA " : "DNA ");
  line += std::string(" MISSING=") + f.MissingSymbol;
  line += std::string(" GAP=") + f.GapSymbol;
  if (f.MatchSymbolOn == 1) line += std::string(" MATCHCHAR=") + f.MatchSymbol;
  if (f.Interleaved == 1) line += " INTERLEAVE ";
  return line + ";";
}

// Cells `from`..`to` - 1 (0-based) of sequence `seq` as written: the first sequence plain, the
// others with the matching symbol where a cell equals the first sequence's.
std::string NexusCells(const ActiveData& ad, int32_t seq, size_t from, size_t to) {
  const FormatAttributes& f = ad.Format;
  const CellStyle style{f.MissingSymbol, f.GapSymbol, f.NucleotideType == 1};
  const char* cells = ad.IncMatrix.sequence(seq);
  const char* first = ad.IncMatrix.sequence(1);
  const bool matching = seq > 1 && f.MatchSymbolOn == 1;
  std::string written(to - from, ' ');
  for (size_t i = from; i < to; ++i) {
    written[i - from] =
        matching && cells[i] == first[i] ? f.MatchSymbol : WrittenCell(cells[i], style);
  }
  return written;
}

void WriteMatrix(const ActiveData& ad, const std::vector<std::string>& names,
                 const KeptStatements& kept, WriterLines& out) {
  size_t width = 0;
  for (const std::string& name : names) width = std::max(width, name.size());
  std::vector<std::string> labels;
  for (const std::string& name : names) {
    labels.push_back(name);
    labels.back().resize(width, ' ');
    labels.back() += "  ";
  }
  const auto sites = static_cast<size_t>(ad.NumSites);
  // Blocks only when they split the rows; otherwise every row is written whole.
  const bool in_blocks = ad.Format.Interleaved == 1 && ad.Format.BlockLength >= 1 &&
                         ad.Format.BlockLength < ad.NumSites;
  const size_t block = in_blocks ? static_cast<size_t>(ad.Format.BlockLength) : sites;
  WriteKeptStatements(kept.Body, out);
  out.Line("MATRIX");
  size_t from = 0;
  do {
    const size_t to = std::min(sites, from + block);
    if (in_blocks) out.Line("[" + std::to_string(from + 1) + "-" + std::to_string(to) + "]");
    for (int32_t s = 1; s <= ad.NumSeqs; ++s) {
      out.Line(labels[static_cast<size_t>(s - 1)] + NexusCells(ad, s, from, to));
      if (from == 0) out.SequenceDone(s, ad.NumSeqs);
    }
    from = to;
  } while (from < sites);
  out.Line(";");
  out.Line("END;");
}

std::vector<std::string> NexusNames(const ActiveData& ad, const std::vector<std::string>& given) {
  if (static_cast<int32_t>(given.size()) == ad.NumSeqs) return given;
  std::vector<std::string> names;
  for (int32_t s = 1; s <= ad.NumSeqs; ++s)
    names.push_back(NexusName(ad.IncNames[static_cast<size_t>(s)]));
  return names;
}

}  // namespace

void WriteNexusDataBlock(const ActiveData& ad, WriterLines& out, const KeptStatements& kept,
                         const std::vector<std::string>& given) {
  const std::vector<std::string> names = NexusNames(ad, given);
  out.Line("BEGIN DATA;");
  WriteKeptStatements(kept.Head, out);
  out.Line("DIMENSIONS NTAX=" + std::to_string(ad.NumSeqs) +
           " NCHAR=" + std::to_string(ad.NumSites) + ";");
  out.Line(FormatLine(ad.Format));
  WriteMatrix(ad, names, kept, out);
}

void WriteNexusTaxaBlock(const ActiveData& ad, WriterLines& out, const KeptStatements& kept,
                         const std::vector<std::string>& given) {
  const std::vector<std::string> names = NexusNames(ad, given);
  out.Line("BEGIN TAXA;");
  WriteKeptStatements(kept.Head, out);
  out.Line("DIMENSIONS NTAX=" + std::to_string(ad.NumSeqs) + ";");
  out.Line("TAXLABELS");
  for (size_t s = 0; s < names.size(); ++s) out.Line(names[s] + (s + 1 == names.size() ? ";" : ""));
  WriteKeptStatements(kept.Body, out);
  out.Line("END;");
}

void WriteNexusCharactersBlock(const ActiveData& ad, WriterLines& out, const KeptStatements& kept,
                               const std::vector<std::string>& given) {
  const std::vector<std::string> names = NexusNames(ad, given);
  out.Line("BEGIN CHARACTERS;");
  WriteKeptStatements(kept.Head, out);
  out.Line("DIMENSIONS NCHAR=" + std::to_string(ad.NumSites) + ";");
  out.Line(FormatLine(ad.Format));
  WriteMatrix(ad, names, kept, out);
}

void WriteNexusMatrixBlocks(const ActiveData& ad, WriterLines& out, const KeptStatements& taxa_kept,
                            const KeptStatements& characters_kept,
                            const std::vector<std::string>& names) {
  if (ad.Format.NexusVersion == 1) {
    WriteNexusDataBlock(ad, out, characters_kept, names);
    return;
  }
  WriteNexusTaxaBlock(ad, out, taxa_kept, names);
  out.Line("");
  WriteNexusCharactersBlock(ad, out, characters_kept, names);
}

}  // namespace ovelt
