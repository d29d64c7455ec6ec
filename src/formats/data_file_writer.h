#pragma once
// "Save / Export Data As...": the included layer written in one of the five formats, and the
// command around it (export_Click): the notice when sequences are excluded, the save dialog,
// the status and gauge, the check of the codon preference table for NEXUS, and the one message
// of a failed write. The ".rdf" writer of the same menu lives with the generated files.

#include <string>
#include <vector>

#include "core/active_data.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"
#include "platform/platform.h"

namespace ovelt {

// Menu index of each kind.
enum WriterMenuIndex : int {
  kFastaWriterIndex = 0,
  kMegaWriterIndex = 1,
  kNbrfWriterIndex = 2,
  kNexusWriterIndex = 3,
  kPhylipWriterIndex = 4,
};

struct WriterKind {
  int MenuIndex;
  std::string Key;          // the command line's name: "fasta", "mega", ...
  std::string MenuText;     // "FASTA File Format"
  std::string DefaultName;  // "*.fas"
  std::string Filter;       // "FASTA Format (*.fas)|*.fas|All Files (*.*)|*.*"
  std::string StatusText;   // " FASTA Format"
};

[[nodiscard]] const std::vector<WriterKind>& WriterKinds();
// nullptr for an index or key of no writer.
[[nodiscard]] const WriterKind* FindWriterKind(int menu_index);
[[nodiscard]] const WriterKind* FindWriterKind(const std::string& key);

inline constexpr const char* kSavingStatus = "Saving...";
inline constexpr const char* kErrorInSaving = "Error in saving file";

// "The active Data File contains only n sequences. Ovelt will generate a Data File with n
// sequences."
[[nodiscard]] std::string ExportFewerSequencesText(int32_t num_seqs);
// "Save/Export File:  " name "  As " and the kind's menu text.
[[nodiscard]] std::string ExportDialogTitle(const std::string& file_name, const WriterKind& kind);

// Writes the included layer in the kind's format to `out`. For NEXUS `codon_usage` holds the
// lines of the CODONUSAGE block (nothing for none).
void WriteDataFileTo(const ActiveData& ad, const WriterKind& kind, const WriterStamp& stamp,
                     const std::vector<std::string>& codon_usage, WriterLines& out);

// The same into the file `path`, whole or not at all; false when it could not be written (an
// old file of that name then stays as it was).
[[nodiscard]] bool WriteDataFile(const ActiveData& ad, const WriterKind& kind,
                                 const std::string& path, const WriterStamp& stamp,
                                 const std::vector<std::string>& codon_usage,
                                 const WriteProgress& progress = {});

// The lines of the CODONUSAGE block of a NEXUS file of the open data. When the assigned table's
// genetic code differs from the data's, the message says so and that table stays out.
[[nodiscard]] std::vector<std::string> CodonUsageForNexus(const ActiveData& ad, Platform& platform);

// export_Click for the writer of `menu_index`, after the platform's save dialog. `version` is
// the program's version text for the file's head. True when a file was written; the caller
// restores the idle status line.
bool ExportDataFile(const ActiveData& ad, Platform& platform, int menu_index,
                    const std::string& version);

}  // namespace ovelt
