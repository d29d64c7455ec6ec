#include "formats/data_file_writer.h"

#include "files/whole_file.h"
#include "formats/codon_usage_writer.h"
#include "formats/fasta_writer.h"
#include "formats/mega_writer.h"
#include "formats/nbrf_writer.h"
#include "formats/nexus_writer.h"
#include "formats/phylip_writer.h"

namespace ovelt {

const std::vector<WriterKind>& WriterKinds() {
  static const std::vector<WriterKind> kinds = {
      {kFastaWriterIndex, "fasta", "FASTA File Format", "*.fas",
       "FASTA Format (*.fas)|*.fas|All Files (*.*)|*.*", " FASTA Format"},
      {kMegaWriterIndex, "mega", "MEGA File Format", "*.meg",
       "MEGA Format (*.meg)|*.meg|All Files (*.*)|*.*", " MEGA Format"},
      {kNbrfWriterIndex, "nbrf", "NBRF File Format", "*.nbr",
       "NBRF Format (*.nbr; *.pir)|*.nbr;*.pir|All Files (*.*)|*.*", " NBRF Format"},
      {kNexusWriterIndex, "nexus", "NEXUS File Format", "*.nex",
       "NEXUS Format (*.nex)|*.nex|All Files (*.*)|*.*", " NEXUS Format"},
      {kPhylipWriterIndex, "phylip", "PHYLIP File Format", "*.phy",
       "PHYLIP Format (*.phy)|*.phy|All Files (*.*)|*.*", " PHYLIP Format"},
  };
  return kinds;
}

const WriterKind* FindWriterKind(int menu_index) {
  for (const WriterKind& kind : WriterKinds())
    if (kind.MenuIndex == menu_index) return &kind;
  return nullptr;
}

const WriterKind* FindWriterKind(const std::string& key) {
  for (const WriterKind& kind : WriterKinds())
    if (kind.Key == key) return &kind;
  return nullptr;
}

std::string ExportFewerSequencesText(int32_t num_seqs) {
  const std::string n = std::to_string(num_seqs);
  return "The active Data File contains only " + n +
         " sequences. Ovelt will generate a Data File with " + n + " sequences.";
}

std::string ExportDialogTitle(const std::string& file_name, const WriterKind& kind) {
  return "Save/Export File:  " + file_name + "  As " + kind.MenuText;
}

void WriteDataFileTo(const ActiveData& ad, const WriterKind& kind, const WriterStamp& stamp,
                     const std::vector<std::string>& codon_usage, WriterLines& out) {
  switch (kind.MenuIndex) {
    case kFastaWriterIndex:
      WriteFasta(ad, stamp, out);
      break;
    case kMegaWriterIndex:
      WriteMega(ad, stamp, out);
      break;
    case kNbrfWriterIndex:
      WriteNbrf(ad, stamp, out);
      break;
    case kNexusWriterIndex:
      WriteNexus(ad, stamp, codon_usage, out);
      break;
    case kPhylipWriterIndex:
      WritePhylip(ad, out);
      break;
    default:
      break;
  }
}

bool WriteDataFile(const ActiveData& ad, const WriterKind& kind, const std::string& path,
                   const WriterStamp& stamp, const std::vector<std::string>& codon_usage,
                   const WriteProgress& progress) {
  WholeFileWriter file(path);
  if (!file.Open()) return false;
  // Only NEXUS follows the chosen line ends; the other formats are written with CR + LF.
  const char* delimiter =
      kind.MenuIndex == kNexusWriterIndex ? LineDelimiterText(ad.Format.LineDelimiter) : "\r\n";
  WriterLines out(file.Stream(), delimiter, progress);
  WriteDataFileTo(ad, kind, stamp, codon_usage, out);
  return out.Good() && file.Commit();
}

std::vector<std::string> CodonUsageForNexus(const ActiveData& ad, Platform& platform) {
  const bool differs = AssignedTableCodeDiffers(ad);
  if (differs) platform.MessageBox(kPrefTableCodeDiffers, MsgIcon::kWarning);
  return CodonUsageBlockOf(TablesForNexusFile(ad, differs));
}

bool ExportDataFile(const ActiveData& ad, Platform& platform, int menu_index,
                    const std::string& version) {
  const WriterKind* kind = FindWriterKind(menu_index);
  if (kind == nullptr) return false;
  if (ad.NumSeqs != ad.TotalSeqs &&
      platform.MessageBox(ExportFewerSequencesText(ad.NumSeqs), MsgIcon::kInformation,
                          MsgButtons::kOkCancel) != MsgAnswer::kOk)
    return false;
  platform.SetStatusText(kind->StatusText);
  const std::optional<std::string> path =
      platform.SaveFileName(ExportDialogTitle(ad.FileName, *kind), kind->Filter, kind->DefaultName);
  if (!path) return false;
  platform.SetStatusText(kSavingStatus);
  platform.SetProgress(0);
  std::vector<std::string> codon_usage;
  if (menu_index == kNexusWriterIndex) codon_usage = CodonUsageForNexus(ad, platform);
  const WriterStamp stamp = MakeWriterStamp(version, ad.FileName, platform);
  const bool written = WriteDataFile(ad, *kind, *path, stamp, codon_usage,
                                     [&platform](int percent) { platform.SetProgress(percent); });
  platform.SetProgress(-1);
  if (!written) platform.MessageBox(kErrorInSaving, MsgIcon::kCritical);
  return written;
}

}  // namespace ovelt
