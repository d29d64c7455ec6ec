#pragma once
// The readers of the formats, each working on the lines of one file from its first line on.
// Each returns a complete file layer or throws ReadError with the report of the first fault.

#include <string>

#include "formats/line_reader.h"
#include "formats/read_file.h"
#include "platform/platform.h"

namespace ovelt {

[[nodiscard]] LoadedFile ReadFasta(LineReader& in, const std::string& path);
[[nodiscard]] LoadedFile ReadNbrf(LineReader& in, const std::string& path);
[[nodiscard]] LoadedFile ReadMega(LineReader& in, const std::string& path,
                                  const MegaOptions& options);
[[nodiscard]] LoadedFile ReadPhylip(LineReader& in, const std::string& path);
[[nodiscard]] LoadedFile ReadNexus(LineReader& in, const std::string& path);

}  // namespace ovelt
