#pragma once
// Files a command line can write from a result besides its report, grid and JSON: the
// statistics of gene flow as distance matrices (--distance-matrix STAT=FILE).

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

#include "command/command_entry.h"
#include "platform/platform.h"
#include "shell/command_runner.h"

namespace ovelt {

struct ExportRequests {
  std::vector<std::string> DistanceMatrices;  // STAT=FILE
};

// Adds the export flags of `entry`'s command, if it has any.
void AddResultExports(CLI::App& app, const CommandEntry& entry, ExportRequests& requests);

// Refuses, before the run, a request that cannot be written whatever the result.
[[nodiscard]] bool CheckResultExports(const ExportRequests& requests, Platform& platform);

// Writes what was asked from the result of a run that stands; false after a refusal or a
// failed write, which it has told.
[[nodiscard]] bool WriteResultExports(const ExportRequests& requests, const RunOutcome& outcome,
                                      Platform& platform);

}  // namespace ovelt
