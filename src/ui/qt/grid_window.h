#pragma once
// A grid window of a result: the analysis's rows under its column titles, in a tab of the
// workspace.

#include <QWidget>

#include "output/output_grid.h"

class QTableWidget;

namespace ovelt {

class GridWindow : public QWidget {
  Q_OBJECT
 public:
  explicit GridWindow(QWidget* parent = nullptr);
  void SetGrid(const QString& caption, const OutputGrid& grid, int minimum_rows);
  [[nodiscard]] QTableWidget* Table() const { return table_; }

 private:
  QTableWidget* table_;
};

}  // namespace ovelt
