#include "ui/qt/independence_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "shell/workbench.h"
#include "tools/independence_margins.h"
#include "shell/command_registry.h"
#include "shell/command_runner.h"

namespace ovelt {
namespace {

QLabel* TotalLabel() {
  auto* label = new QLabel;
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setMinimumWidth(70);
  label->setMaximumWidth(120);
  label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  return label;
}

QLabel* Heading(const QString& text, Qt::Alignment align = Qt::AlignCenter) {
  auto* label = new QLabel(text);
  label->setAlignment(align);
  return label;
}

}  // namespace

IndependenceWindow::IndependenceWindow(Workbench& wb, QWidget* parent)
    : ToolReportWindow(wb, kIndependenceCaption, "Compute", parent) {
  auto* box = new QGroupBox("2 x 2 table");
  auto* grid = new QGridLayout(box);
  grid->addWidget(Heading("Column 1"), 0, 1);
  grid->addWidget(Heading("Column 2"), 0, 2);
  grid->addWidget(Heading("Total"), 0, 3);
  grid->addWidget(Heading("Row 1", Qt::AlignLeft | Qt::AlignVCenter), 1, 0);
  grid->addWidget(Heading("Row 2", Qt::AlignLeft | Qt::AlignVCenter), 2, 0);
  grid->addWidget(Heading("Total", Qt::AlignLeft | Qt::AlignVCenter), 3, 0);

  const IndependenceOptions defaults = F12DefectValues();
  const std::array<const std::string*, 4> values = {&defaults.A, &defaults.B, &defaults.C,
                                                    &defaults.D};
  const std::array<const char*, 4> names = {"a", "b", "c", "d"};
  for (int i = 0; i < 4; ++i) {
    cells_[i] = new QLineEdit(QString::fromStdString(*values[i]));
    cells_[i]->setObjectName(names[i]);
    cells_[i]->setPlaceholderText(names[i]);
    cells_[i]->setAlignment(Qt::AlignRight);
    cells_[i]->setMaximumWidth(120);
    grid->addWidget(cells_[i], 1 + i / 2, 1 + i % 2);
    connect(cells_[i], &QLineEdit::textChanged, this, &IndependenceWindow::ShowTotals);
  }
  for (int i = 0; i < 2; ++i) {
    row_totals_[i] = TotalLabel();
    column_totals_[i] = TotalLabel();
    grid->addWidget(row_totals_[i], 1 + i, 3);
    grid->addWidget(column_totals_[i], 3, 1 + i);
  }
  grand_total_ = TotalLabel();
  grid->addWidget(grand_total_, 3, 3);
  Inputs()->addWidget(box);
  ShowTotals();
}

QString IndependenceWindow::RowTotal(int row) const { return row_totals_.at(row - 1)->text(); }
QString IndependenceWindow::ColumnTotal(int column) const {
  return column_totals_.at(column - 1)->text();
}
QString IndependenceWindow::GrandTotal() const { return grand_total_->text(); }

IndependenceOptions IndependenceWindow::Boxes() const {
  return {cells_[0]->text().toStdString(), cells_[1]->text().toStdString(),
          cells_[2]->text().toStdString(), cells_[3]->text().toStdString()};
}

void IndependenceWindow::ShowTotals() {
  const IndependenceMargins m = TableMargins(Boxes());
  row_totals_[0]->setText(QString::fromStdString(m.Row1));
  row_totals_[1]->setText(QString::fromStdString(m.Row2));
  column_totals_[0]->setText(QString::fromStdString(m.Column1));
  column_totals_[1]->setText(QString::fromStdString(m.Column2));
  grand_total_->setText(QString::fromStdString(m.Total));
}

bool IndependenceWindow::Compute() {
  TypedOptions<IndependenceOptions> options(Boxes());
  return RunCommand(Bench(), *FindEntry(CommandId::kIndependence), options).Stands;
}

}  // namespace ovelt
