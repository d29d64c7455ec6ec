#include "shell/matrix_export.h"

#include "files/whole_file.h"

namespace ovelt {

std::string MatrixFormatTitle(MatrixFormat format) {
  return format == MatrixFormat::kPhylip ? "PHYLIP Format File" : "MEGA Format File";
}

bool ExportDistanceMatrix(Platform& platform, const GeneFlowResult& result,
                          const std::string& statistic, MatrixFormat format) {
  const bool phylip = format == MatrixFormat::kPhylip;
  const auto path = platform.SaveFileName(MatrixFormatTitle(format),
                                          phylip ? "PHYLIP Format (*.phy)|*.phy|All Files (*.*)|*.*"
                                                 : "MEGA Format (*.meg)|*.meg|All Files (*.*)|*.*",
                                          phylip ? "*.phy" : "*.meg");
  if (!path || path->empty()) return false;
  const size_t slash = path->find_last_of("/\\");
  const std::string name = slash == std::string::npos ? *path : path->substr(slash + 1);
  if (!WriteWholeFile(*path, DistanceMatrixText(result, statistic, format, name))) {
    platform.MessageBox("Can't save file: " + *path, MsgIcon::kWarning);
    return false;
  }
  return true;
}

}  // namespace ovelt
