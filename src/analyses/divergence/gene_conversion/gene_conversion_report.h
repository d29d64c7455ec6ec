#pragma once
// The report of gene conversion between two populations, and its grids: the informative sites
// with their Psi, or Psi along the sliding window, with its chart.

#include <string>
#include <vector>

#include "analyses/divergence/gene_conversion/gene_conversion_compute.h"
#include "output/graph_data.h"

namespace ovelt {

[[nodiscard]] std::string GeneConversionReport(const GeneConversionResult& result);

// "Site", "Psi": the sites of the region with Psi above 0.
[[nodiscard]] std::vector<std::string> InformativeSiteTitles();
[[nodiscard]] std::vector<std::string> InformativeSiteRow(const InformativeSite& row);
// The head of that grid in a saved output.
[[nodiscard]] std::string InformativeSiteTextHead();

// "Window", "Midpoint", "Psi".
[[nodiscard]] std::vector<std::string> ConversionWindowTitles();
[[nodiscard]] std::vector<std::string> ConversionWindowRow(const ConversionWindow& row);
// The chart's table: rows 1..R, columns midpoint and Psi.
[[nodiscard]] GraphData ConversionGraph(const ConversionWindows& windows);

}  // namespace ovelt
