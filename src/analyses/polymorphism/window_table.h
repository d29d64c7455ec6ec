#pragma once
// What a sliding-window run leaves for the graph: one row per window, column 1 the midpoint
// (the X value) and the following columns the window's statistics, held as 32-bit floats.
// Rows count from 1 (row 0 stays unused); the table is sized for the most windows the region
// can hold, and `RowsUsed` tells how many the run filled.

#include <cstdint>
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

// What an analysis leaves for the graph window.
struct GraphData {
  int16_t GraphKind = 0;
  int16_t GraphSubKind = 0;
  int32_t GraphRows = 0;
  WindowTable Table;
};

}  // namespace ovelt
