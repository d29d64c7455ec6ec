#include "ui/cli/file_job.h"

#include <CLI/CLI.hpp>

#include "shell/workbench.h"
#include "ui/cli/console_platform.h"

namespace ovelt {

void AddFileJob(CLI::App& app, FileJob& job, bool file_optional) {
  auto* file = app.add_option("FILE", job.file, "Alignment file (FASTA, NBRF/PIR, MEGA, PHYLIP)");
  if (!file_optional) file->required();
  AddDataOptions(app, job.data);
  AddOutputOptions(app, job.output);
}

bool OpenJob(const FileJob& job, Workbench& wb, ConsolePlatform& platform, std::ostream& err) {
  if (!PrepareDataOptions(job.data, platform, err)) return false;
  if (!BeginSession(job.output, wb, platform)) return false;
  if (!wb.OpenPath(job.file)) return false;
  return ApplyDataOptions(job.data, wb, err);
}

}  // namespace ovelt
