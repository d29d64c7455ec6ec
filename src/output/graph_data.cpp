#include "output/graph_data.h"

#include <stdexcept>

namespace ovelt {

WindowTable::WindowTable(int32_t capacity, int32_t columns)
    : capacity_(capacity < 0 ? 0 : capacity),
      columns_(columns < 0 ? 0 : columns),
      cells_(static_cast<size_t>(capacity_ + 1) * static_cast<size_t>(columns_), 0.0f) {}

float WindowTable::at(int32_t row, int32_t column) const {
  if (row < 0 || row > capacity_ || column < 0 || column >= columns_)
    throw std::out_of_range("window table cell");
  return cells_[static_cast<size_t>(row) * static_cast<size_t>(columns_) +
                static_cast<size_t>(column)];
}

float& WindowTable::at(int32_t row, int32_t column) {
  if (row < 0 || row > capacity_ || column < 0 || column >= columns_)
    throw std::out_of_range("window table cell");
  return cells_[static_cast<size_t>(row) * static_cast<size_t>(columns_) +
                static_cast<size_t>(column)];
}

}  // namespace ovelt
