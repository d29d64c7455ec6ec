#include "ui/qt/select_statistic_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>

#include "shell/matrix_export.h"

namespace ovelt {

SelectStatisticDialog::SelectStatisticDialog(QWidget* parent)
    : QDialog(parent), statistic_(new QComboBox), format_(new QComboBox) {
  setWindowTitle("Select Statistic");
  for (const std::string& name : MatrixStatistics())
    statistic_->addItem(QString::fromStdString(name));
  statistic_->setCurrentText("Fst");
  format_->addItem(QString::fromStdString(MatrixFormatTitle(MatrixFormat::kPhylip)));
  format_->addItem(QString::fromStdString(MatrixFormatTitle(MatrixFormat::kMega)));
  auto* form = new QFormLayout(this);
  form->addRow("Statistic:", statistic_);
  form->addRow("Format:", format_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
}

std::string SelectStatisticDialog::Statistic() const {
  return statistic_->currentText().toStdString();
}

MatrixFormat SelectStatisticDialog::Format() const {
  return format_->currentIndex() == 1 ? MatrixFormat::kMega : MatrixFormat::kPhylip;
}

}  // namespace ovelt
