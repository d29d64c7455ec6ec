#pragma once
// "Tests of Independence" (Form12): the four cells of a 2 x 2 table with their row and column
// totals, and the report of Fisher's exact, chi-square and G tests under them. The checks, the
// tests and the report are those of the command's binding (tools/independence_command.h), run
// by the one runner.

#include <array>

#include "tools/independence_options.h"
#include "ui/qt/tool_windows_report.h"

class QLabel;
class QLineEdit;

namespace ovelt {

class IndependenceWindow : public ToolReportWindow {
  Q_OBJECT
 public:
  explicit IndependenceWindow(Workbench& wb, QWidget* parent = nullptr);

  // The boxes a, b, c, d in reading order.
  [[nodiscard]] QLineEdit* Cell(int index) const { return cells_.at(index); }
  // The totals: rows 1 and 2, columns 1 and 2, the whole table.
  [[nodiscard]] QString RowTotal(int row) const;
  [[nodiscard]] QString ColumnTotal(int column) const;
  [[nodiscard]] QString GrandTotal() const;

 protected:
  bool Compute() override;

 private:
  [[nodiscard]] IndependenceOptions Boxes() const;
  void ShowTotals();

  std::array<QLineEdit*, 4> cells_{};
  std::array<QLabel*, 2> row_totals_{};
  std::array<QLabel*, 2> column_totals_{};
  QLabel* grand_total_ = nullptr;
};

}  // namespace ovelt
