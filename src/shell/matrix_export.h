#pragma once
// The export of a gene-flow statistic as a distance matrix from the desktop ("Select
// Statistic"): the file is asked for with the format's own filter, then written whole.

#include <string>

#include "analyses/divergence/gene_flow/distance_matrix.h"
#include "platform/platform.h"

namespace ovelt {

// The caption of the save dialog of a format: "PHYLIP Format File" or "MEGA Format File".
[[nodiscard]] std::string MatrixFormatTitle(MatrixFormat format);

// Asks the file, writes `statistic` of `result` there; false when cancelled or not written
// (told with "Can't save file: " and the name).
bool ExportDistanceMatrix(Platform& platform, const GeneFlowResult& result,
                          const std::string& statistic, MatrixFormat format);

}  // namespace ovelt
