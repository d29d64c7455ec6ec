#pragma once
// A statistic of the table of pairs of populations written as a distance matrix, the lower
// triangle, for the programs that draw trees from one: PHYLIP (the number of populations, then
// each population's ten-character name with its distances to those before it) or MEGA ("#mega",
// the title, "#" and each population's name, an empty line, then the rows of the lower triangle
// from the second population on). Values in "0.00000", with a decimal point.

#include <optional>
#include <string>
#include <vector>

#include "analyses/divergence/gene_flow/gene_flow_compute.h"

namespace ovelt {

enum class MatrixFormat { kPhylip, kMega };

// The statistics of the table, by their names in the grid: "Hs", "Ks", "Kxy", "Gst",
// "DeltaSt", "GammaSt", "Nst", "Fst", "Dxy", "Da".
[[nodiscard]] const std::vector<std::string>& MatrixStatistics();

// The format a file name asks for (.phy, .phylip; .meg, .mega), if any.
[[nodiscard]] std::optional<MatrixFormat> MatrixFormatOf(const std::string& file_name);

// `statistic` one of MatrixStatistics(); `file_name` goes into the MEGA title.
[[nodiscard]] std::string DistanceMatrixText(const GeneFlowResult& result,
                                             const std::string& statistic, MatrixFormat format,
                                             const std::string& file_name);

}  // namespace ovelt
