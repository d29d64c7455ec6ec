#pragma once
// Loading of an alignment file into a file layer, apart from the active data: nothing of a
// failed read ever reaches the open state. The kind of file is found from its first line,
// never from its extension.

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/seq_matrix.h"
#include "formats/nexus_extras.h"
#include "platform/platform.h"

namespace ovelt {

// What a reader produced.
struct LoadedFile {
  int16_t FileKind = 4;       // 0 MEGA, 1 NBRF/PIR, 2 NEXUS, 3 PHYLIP, 4 FASTA
  int32_t NumSites = 0;
  SeqMatrix Matrix;           // NumSites x number of sequences
  std::vector<std::string> Names{""};  // 1..n, each a fixed 20-character field
  int16_t Interleaved = 0;
  int32_t BlockLength = 60;
  // MEGA symbols chosen in the "MEGA Data File" dialog (MEGA files only).
  bool HasMegaSymbols = false;
  char MatchSymbol = '.', GapSymbol = '-', MissingSymbol = '?';
  // Everything else a NEXUS file holds (NEXUS files only): see ApplyNexusExtras.
  std::optional<NexusExtras> Nexus;

  [[nodiscard]] int32_t NumSeqs() const { return static_cast<int32_t>(Names.size()) - 1; }
};

// A reported failure: `what()` is the whole text of the box ("\n" between lines).
class ReadError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The user cancelled a dialog of the reader (the MEGA dialog): the open ends silently.
class ReadCancelled : public std::runtime_error {
 public:
  ReadCancelled() : std::runtime_error("cancelled") {}
};

// Kind of file from its first line, or -1 for "Bad or unknown file format".
[[nodiscard]] int DetectFileKind(const std::string& first_line);

// Progress of a read in percent (0..100).
using ReadProgress = std::function<void(int)>;

// The name that stands for standard input.
inline constexpr const char* kStandardInputPath = "-";

// Reads `path` ("-": standard input), once from start to end, so that pipes read as files do.
// Throws ReadError with the reader's message, or ReadCancelled. `platform` answers the MEGA
// dialog and shows status texts.
[[nodiscard]] LoadedFile ReadDataFile(const std::string& path, Platform& platform,
                                      const ReadProgress& progress = {});

// Reads a file held in memory. `display_path` stands for the file in messages. `kind` is a
// FileKind code, or nullopt to find it from the first line as ReadDataFile does; `mega` answers
// the MEGA dialog. Throws as ReadDataFile does (never ReadCancelled).
[[nodiscard]] LoadedFile ReadDataBuffer(std::string_view bytes, const std::string& display_path,
                                        std::optional<int> kind = std::nullopt,
                                        const MegaOptions& mega = {},
                                        const ReadProgress& progress = {});

}  // namespace ovelt
