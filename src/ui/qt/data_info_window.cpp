#include "ui/qt/data_info_window.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ovelt {

DataInfoWindow::DataInfoWindow(const std::vector<InfoRow>& rows, std::function<void()> to_output,
                               QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(kDataInformationTitle);
  auto* layout = new QVBoxLayout(this);
  table_ = new QTableWidget(static_cast<int>(rows.size()), 2);
  table_->horizontalHeader()->hide();
  table_->verticalHeader()->hide();
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  for (size_t r = 0; r < rows.size(); ++r) {
    table_->setItem(static_cast<int>(r), 0, new QTableWidgetItem(QString::fromStdString(rows[r].first)));
    table_->setItem(static_cast<int>(r), 1, new QTableWidgetItem(QString::fromStdString(rows[r].second)));
  }
  table_->resizeColumnsToContents();
  table_->resizeRowsToContents();
  table_->horizontalHeader()->setStretchLastSection(true);
  // Tall and wide enough for every row: the grid is read at a glance, never scrolled.
  const int frame = 2 * table_->frameWidth();
  table_->setMinimumSize(table_->horizontalHeader()->length() + frame + 24,
                         table_->verticalHeader()->length() + frame);
  table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  layout->addWidget(table_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* output = buttons->addButton("Output", QDialogButtonBox::ActionRole);
  connect(output, &QPushButton::clicked, this, [to_output] { to_output(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  adjustSize();
}

}  // namespace ovelt
