#pragma once
// What a sliding-window run leaves for the graph: one row per window, column 1 the midpoint
// (the X value) and the following columns the window's statistics, held as 32-bit floats.
// Rows count from 1 (row 0 stays unused); the table is sized for the most windows the region
// can hold, and `RowsUsed` tells how many the run filled.

#include <cstdint>
#include <string>
#include <vector>

namespace ovelt {

class WindowTable {
 public:
  WindowTable() = default;
  // Rows 0..`capacity`, columns 0..`columns` - 1, all 0.
  WindowTable(int32_t capacity, int32_t columns);

  [[nodiscard]] int32_t Capacity() const { return capacity_; }
  [[nodiscard]] int32_t Columns() const { return columns_; }

  [[nodiscard]] float at(int32_t row, int32_t column) const;
  float& at(int32_t row, int32_t column);

  // The rows the run filled (1..RowsUsed).
  int32_t RowsUsed = 0;

 private:
  int32_t capacity_ = 0;
  int32_t columns_ = 0;
  std::vector<float> cells_;
};

// The chart families of the graph window; a kind outside 1..16 shows no chart.
inline constexpr int16_t kGraphPolymorphism = 1;
inline constexpr int16_t kGraphDivergence = 2;
inline constexpr int16_t kGraphLinkage = 3;
inline constexpr int16_t kGraphConversion = 4;
inline constexpr int16_t kGraphTajima = 5;
inline constexpr int16_t kGraphFuLi = 6;
inline constexpr int16_t kGraphFuLiOutgroup = 7;
inline constexpr int16_t kGraphMismatch = 15;
inline constexpr int16_t kGraphCodingRatios = 16;
inline constexpr int16_t kFirstGraphKind = 1;
inline constexpr int16_t kLastGraphKind = 16;

// Critical values of a neutrality statistic for the sample of the run (P = 0.05): the chart
// draws them as two horizontal lines.
struct GraphBound {
  int32_t Column = 0;  // the table column the bounds belong to
  float Lower = 0.0f;
  float Upper = 0.0f;
};

// What an analysis leaves for the graph window.
//
// The LD chart (kind 3) holds one row per pair of sites: column 1 the nucleotide distance,
// columns 2..7 D, |D|, D', |D'|, R and R^2, column 8 1 for a significant pair and 0 otherwise.
// The mismatch charts (kind 15) hold the X value in column 1 and the observed and expected
// values in columns 2 and 3.
struct GraphData {
  int16_t GraphKind = 0;
  int16_t GraphSubKind = 0;
  int32_t GraphRows = 0;
  WindowTable Table;
  // Names of the columns 2.. when the analysis names them itself (the G+C windows, the curves
  // of Sn(t)); empty for the names of the kind.
  std::vector<std::string> SeriesNames;
  std::vector<GraphBound> Bounds;
};

}  // namespace ovelt
