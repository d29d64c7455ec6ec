#pragma once
// "Update NEXUS Data File": the open NEXUS file rewritten with everything defined
// since it was read. The blocks of the file keep their order: the matrix, SETS and CODONS
// blocks, the program's own block and CODONUSAGE are written anew from the open data where
// the file had them; blocks the reader did not take in, and the comments between blocks, are
// copied as they stood. Blocks the file lacked follow its last block, as the plain writer
// orders them. The names of the sequences are written as the file had them, never cut to the
// program's field of 20 characters nor cleaned.

#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "formats/nexus_document.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"
#include "platform/platform.h"

namespace ovelt {

inline constexpr const char* kUpdateQuestionTitle = "Careful!";

// "The active Data File contains only n sequences. Ovelt will update the <name> Data File with
// only n sequences."
[[nodiscard]] std::string UpdateFewerSequencesText(int32_t num_seqs, const std::string& file_name);

// The file in update mode. Without a recorded shape (`document` empty) the file is written as
// the plain NEXUS writer writes it.
void WriteNexusUpdate(const ActiveData& ad, const NexusDocument& document, const WriterStamp& stamp,
                      const std::vector<std::string>& codon_usage, WriterLines& out);

// The refusal of an update of data read from standard input or from anything but a regular
// file; nullopt when `path` names a file that can be updated.
[[nodiscard]] std::optional<std::string> NoFileToUpdate(const std::string& path);

// MenuUpdateNEXUS_Click, with `path` the path the open file was read from. Only for a NEXUS
// file. The file is replaced whole or not at all. True when the file was written; the caller
// restores the idle status line.
bool UpdateNexusDataFile(const ActiveData& ad, const NexusDocument& document,
                         const std::string& path, Platform& platform, const std::string& version);

}  // namespace ovelt
