#pragma once
// What every subcommand that opens a data file shares: the file, the data settings and the
// output files, and the steps that open the file and send the result out.

#include <iosfwd>
#include <string>

#include "ui/cli/data_options.h"
#include "ui/cli/output_options.h"

namespace CLI {
class App;
}

namespace ovelt {

class Workbench;
class ConsolePlatform;

struct FileJob {
  std::string file;
  DataOptions data;
  OutputOptions output;
};

// Declares FILE (required unless `file_optional`), the data settings and the output files.
void AddFileJob(CLI::App& app, FileJob& job, bool file_optional = false);

// Opens the session file, the data file, and applies the data settings; false when refused
// (the message went to standard error).
bool OpenJob(const FileJob& job, Workbench& wb, ConsolePlatform& platform, std::ostream& err);

inline constexpr int kCliDone = 0;
inline constexpr int kCliRefused = 1;
inline constexpr int kCliUsage = 2;

}  // namespace ovelt
