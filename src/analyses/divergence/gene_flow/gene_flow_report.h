#pragma once
// The report of gene flow and genetic differentiation, and the table of every pair of
// populations (the grid, and the saved-file table of the output).

#include <string>
#include <vector>

#include "analyses/divergence/gene_flow/gene_flow_compute.h"
#include "output/output_grid.h"

namespace ovelt {

[[nodiscard]] std::string GeneFlowReport(const GeneFlowResult& result);

// "POPULATION 1", "POPULATION 2", "Hs", "Ks", "Kxy", "Gst", "DeltaSt", "GammaSt", "Nst", "Fst",
// "Dxy", "Da".
[[nodiscard]] std::vector<std::string> GeneFlowPairTitles();
[[nodiscard]] std::vector<std::string> GeneFlowPairRow(const GeneFlowPair& pair);
[[nodiscard]] GeneFlowTable GeneFlowPairTable(const GeneFlowResult& result);

// The P values of the permutation test of every pair (the desktop's second grid).
[[nodiscard]] std::vector<std::string> GeneFlowTestTitles();
[[nodiscard]] std::vector<std::string> GeneFlowTestRow(const GeneFlowPair& pair);

}  // namespace ovelt
