#include "ui/qt/mega_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "formats/mega_dialog_check.h"

namespace ovelt {

MegaDialog::MegaDialog(const QString& file_name, QWidget* parent) : QDialog(parent) {
  setWindowTitle(kMegaDialogTitle);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Data File: " + file_name));

  auto* format = new QGroupBox("Format");
  auto* format_layout = new QVBoxLayout(format);
  auto* sequential = new QRadioButton("Sequential");
  interleaved_ = new QRadioButton("Interleaved");
  sequential->setChecked(true);
  format_layout->addWidget(sequential);
  format_layout->addWidget(interleaved_);
  layout->addWidget(format);

  auto* symbols = new QGroupBox("Symbols");
  auto* form = new QFormLayout(symbols);
  match_ = new QLineEdit(".");
  gap_ = new QLineEdit("-");
  missing_ = new QLineEdit("?");
  for (QLineEdit* edit : {match_, gap_, missing_}) edit->setMaxLength(1);
  form->addRow("Matching Symbol:", match_);
  form->addRow("Gap Symbol:", gap_);
  form->addRow("Missing Symbol:", missing_);
  layout->addWidget(symbols);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &MegaDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &MegaDialog::reject);
  layout->addWidget(buttons);
}

void MegaDialog::accept() {
  if (const auto refusal = CheckMegaSymbols(match_->text().toStdString(),
                                            gap_->text().toStdString(),
                                            missing_->text().toStdString())) {
    QMessageBox::warning(this, QString::fromStdString(refusal->Title),
                         QString::fromStdString(refusal->Text));
    return;  // the dialog stays open
  }
  QDialog::accept();
}

MegaOptions MegaDialog::Options() const {
  MegaOptions options;
  options.Layout = interleaved_->isChecked() ? 1 : 0;
  options.MatchSymbol = match_->text().toStdString()[0];
  options.GapSymbol = gap_->text().toStdString()[0];
  options.MissingSymbol = missing_->text().toStdString()[0];
  return options;
}

}  // namespace ovelt
