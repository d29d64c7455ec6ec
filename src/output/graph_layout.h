#pragma once
// The chart of a GraphData as drawing primitives: the chosen series of the chooser against the
// X column, scaled into the fixed frame. Kinds outside 1..16, an empty table or a series the
// chart does not offer give no chart (HasChart false) and no message.

#include "output/graph_data.h"
#include "output/graph_picture.h"

namespace ovelt {

struct GraphRequest {
  int Series = 0;                // index into SeriesOffered
  bool ShowSignificant = false;  // the "Sign" button of the LD chart
};

[[nodiscard]] GraphPicture LayoutGraph(const GraphData& graph, const GraphRequest& request);

// The LD chart (kind 3): the pairs as points against their distance, the regression line of
// all pairs with its equation, and with ShowSignificant the significant pairs marked and their
// own regression line; "There are 0 significant values" when none is significant.
[[nodiscard]] GraphPicture LayoutLinkageGraph(const GraphData& graph, int column,
                                              const std::string& name, bool show_significant);

inline constexpr const char* kNoSignificantValues = "There are 0 significant values";
inline constexpr int32_t kLinkageSignificantColumn = 8;

}  // namespace ovelt
