#pragma once
// Small helpers shared by the reader tests.

#include <optional>
#include <string>
#include <string_view>

#include "core/active_data.h"
#include "formats/read_file.h"

namespace ovelt::testing {

// The cells of sequence `seq` as a string.
inline std::string Row(const LoadedFile& file, int seq) {
  return std::string(file.Matrix.sequence(seq), static_cast<size_t>(file.Matrix.sites()));
}

// The text of the ReadError that reading `bytes` throws, or "" when it loads.
inline std::string ErrorOf(std::string_view bytes, std::optional<int> kind = std::nullopt,
                           const MegaOptions& mega = {}) {
  try {
    (void)ReadDataBuffer(bytes, "t.txt", kind, mega);
  } catch (const ReadError& error) {
    return error.what();
  }
  return "";
}

// The head and file lines of a report about the in-memory file "t.txt".
inline const std::string kHead = "        Data File Error !\n\nInput data file: t.txt\n\n";
inline const std::string kPhylipHead = "     Data File Error !\n\nInput data file: t.txt\n\n";

}  // namespace ovelt::testing
