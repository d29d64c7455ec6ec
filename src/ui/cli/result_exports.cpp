#include "ui/cli/result_exports.h"

#include <memory>
#include <optional>

#include "analyses/divergence/gene_flow/distance_matrix.h"
#include "files/whole_file.h"

namespace ovelt {

namespace {

std::string StatisticList() {
  std::string list;
  for (const std::string& name : MatrixStatistics()) list += (list.empty() ? "" : ", ") + name;
  return list;
}

struct MatrixRequest {
  std::string Statistic, File;
};

MatrixRequest Split(const std::string& request) {
  const size_t equals = request.find('=');
  return {request.substr(0, equals),
          equals == std::string::npos ? std::string() : request.substr(equals + 1)};
}

// The refusal of a request that names no statistic of the table or no file of a known format.
std::optional<std::string> RequestFault(const std::string& request) {
  const MatrixRequest r = Split(request);
  bool known = false;
  for (const std::string& name : MatrixStatistics()) known = known || name == r.Statistic;
  if (!known || r.File.empty())
    return "--distance-matrix takes STATISTIC=FILE, the statistic one of " + StatisticList() +
           "; it is \"" + request + "\".";
  if (!MatrixFormatOf(r.File))
    return "A distance matrix is written as PHYLIP (.phy) or MEGA (.meg); \"" + r.File +
           "\" is neither.";
  return std::nullopt;
}

bool WriteDistanceMatrix(const std::string& request, const GeneFlowResult& result,
                         Platform& platform) {
  const auto [statistic, file] = Split(request);
  const auto format = MatrixFormatOf(file);
  const size_t slash = file.find_last_of('/');
  const std::string name = slash == std::string::npos ? file : file.substr(slash + 1);
  if (!WriteWholeFile(file, DistanceMatrixText(result, statistic, *format, name))) {
    platform.MessageBox("Can't save file: " + file, MsgIcon::kWarning);
    return false;
  }
  return true;
}

}  // namespace

void AddResultExports(CLI::App& app, const CommandEntry& entry, ExportRequests& requests) {
  if (entry.Facts.Id != CommandId::kGeneFlow) return;
  app.add_option("--distance-matrix", requests.DistanceMatrices,
                 "Write a statistic of the table of pairs of populations as a distance matrix: "
                 "STATISTIC=FILE.phy (PHYLIP) or STATISTIC=FILE.meg (MEGA), the statistic one of " +
                     StatisticList())
      ->group("Output");
}

bool CheckResultExports(const ExportRequests& requests, Platform& platform) {
  for (const std::string& request : requests.DistanceMatrices) {
    if (const auto fault = RequestFault(request)) {
      platform.MessageBox(*fault, MsgIcon::kWarning);
      return false;
    }
  }
  return true;
}

bool WriteResultExports(const ExportRequests& requests, const RunOutcome& outcome,
                        Platform& platform) {
  if (requests.DistanceMatrices.empty()) return true;
  const auto* held = std::any_cast<std::shared_ptr<const GeneFlowResult>>(&outcome.Result);
  if (held == nullptr || *held == nullptr) return false;
  bool ok = true;
  for (const std::string& request : requests.DistanceMatrices)
    ok = WriteDistanceMatrix(request, **held, platform) && ok;
  return ok;
}

}  // namespace ovelt
