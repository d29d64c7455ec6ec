#pragma once
// The subcommands of the analyses of the registry: FILE, the data settings, the output files,
// --json, and the flags of the analysis's own options (declared once in its options struct). A
// run opens the file, settles the flags, makes the checks of the command, runs it through the
// runner and sends its result out.

#include <ostream>
#include <string>

#include "platform/platform.h"
#include "ui/cli/cli_registry.h"

namespace ovelt {

// A subcommand for every built analysis of the registry.
void AddAnalysisCommands(CliRegistry& registry);

// "-" writes to `out`, in place of the report's text.
bool WriteJsonFile(const std::string& path, const std::string& json, Platform& platform,
                   std::ostream& out);

}  // namespace ovelt
