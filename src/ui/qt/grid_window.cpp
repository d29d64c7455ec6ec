#include "ui/qt/grid_window.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ovelt {

GridWindow::GridWindow(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  export_ = new QToolButton;
  export_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  export_->hide();
  connect(export_, &QToolButton::clicked, this, [this] {
    if (export_action_) export_action_();
  });
  table_ = new QTableWidget;
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(export_, 0, Qt::AlignLeft);
  layout->addWidget(table_);
  setFocusProxy(table_);
}

void GridWindow::SetExport(const QString& text, std::function<void()> action) {
  export_action_ = std::move(action);
  export_->setText(text);
  export_->setToolTip(text);
  export_->setVisible(static_cast<bool>(export_action_));
}

void GridWindow::SetGrid(const QString& caption, const OutputGrid& grid, int minimum_rows) {
  setWindowTitle(caption);
  size_t columns = grid.ColumnTitles.size();
  for (const auto& row : grid.Rows) columns = std::max(columns, row.size());
  table_->clear();
  table_->setColumnCount(static_cast<int>(columns));
  table_->setRowCount(std::max(static_cast<int>(grid.Rows.size()), minimum_rows));
  QStringList titles;
  for (const auto& title : grid.ColumnTitles) titles << QString::fromStdString(title);
  table_->setHorizontalHeaderLabels(titles);
  for (size_t r = 0; r < grid.Rows.size(); ++r)
    for (size_t c = 0; c < grid.Rows[r].size(); ++c)
      table_->setItem(static_cast<int>(r), static_cast<int>(c),
                      new QTableWidgetItem(QString::fromStdString(grid.Rows[r][c])));
  table_->resizeColumnsToContents();
}

}  // namespace ovelt
