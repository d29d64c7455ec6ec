#include "analyses/linkage/linkage_graph.h"

#include <cmath>
#include <cstddef>

#include "output/graph_layout.h"

namespace ovelt {

GraphData LinkageGraph(const LinkageResult& result) {
  GraphData graph;
  graph.GraphKind = kGraphLinkage;
  const auto rows = static_cast<int32_t>(result.Pairs().size());
  graph.Table = WindowTable(rows, kLinkageSignificantColumn + 1);
  for (int32_t r = 1; r <= rows; ++r) {
    const LinkagePairRow& p = result.Pairs()[static_cast<std::size_t>(r - 1)];
    const double values[] = {static_cast<double>(p.Dist), p.D, std::fabs(p.D), p.DPrime,
                             std::fabs(p.DPrime), p.R, p.R2, p.Significant ? 1.0 : 0.0};
    for (int32_t c = 1; c <= kLinkageSignificantColumn; ++c)
      graph.Table.at(r, c) = static_cast<float>(values[c - 1]);
  }
  graph.Table.RowsUsed = rows;
  graph.GraphRows = rows;
  return graph;
}

}  // namespace ovelt
