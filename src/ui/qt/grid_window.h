#pragma once
// A grid window of a result: the analysis's rows under its column titles, in a tab of the
// workspace.

#include <QWidget>

#include <functional>

#include "output/output_grid.h"

class QTableWidget;
class QToolButton;

namespace ovelt {

class GridWindow : public QWidget {
  Q_OBJECT
 public:
  explicit GridWindow(QWidget* parent = nullptr);
  void SetGrid(const QString& caption, const OutputGrid& grid, int minimum_rows);
  [[nodiscard]] QTableWidget* Table() const { return table_; }
  // A button above the rows for a file the result can be written to ("Export Distance
  // Matrix..."); no action hides it.
  void SetExport(const QString& text, std::function<void()> action);
  [[nodiscard]] QToolButton* ExportButton() const { return export_; }

 private:
  QTableWidget* table_;
  QToolButton* export_;
  std::function<void()> export_action_;
};

}  // namespace ovelt
