#include "ui/qt/coding_region_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <stdexcept>

#include "shell/workbench.h"

namespace ovelt {

namespace {
QString Q(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

CodingRegionDialog::CodingRegionDialog(Workbench& workbench, QWidget* parent)
    : QDialog(parent), workbench_(workbench), session_(workbench.Data()) {
  const ActiveData& d = workbench.Data();
  setWindowTitle("Protein Coding Regions ");
  auto* layout = new QVBoxLayout(this);

  auto* file = new QHBoxLayout;
  file->addWidget(new QLabel("Active Data File:"));
  auto* name = new QLabel(Q(d.FileName));
  name->setStyleSheet("font-weight: bold");
  file->addWidget(name, 1);
  layout->addLayout(file);

  auto* region = new QGroupBox("Selected region");
  auto* grid = new QGridLayout(region);
  from_ = new QLineEdit(QString::number(1));
  to_ = new QLineEdit(QString::number(d.NumSites));
  grid->addWidget(new QLabel("From site:  "), 0, 0);
  grid->addWidget(from_, 0, 1);
  grid->addWidget(new QLabel("to:  "), 0, 2);
  grid->addWidget(to_, 0, 3);
  grid->addWidget(new QLabel(Q(LastSiteCaption(d))), 1, 3);
  layout->addWidget(region);

  noncoding_ = new QRadioButton(Q(kNonCodingChoice));
  coding_ = new QRadioButton(Q(kCodingChoice));
  coding_->setChecked(true);
  layout->addWidget(noncoding_);
  layout->addWidget(coding_);

  auto* first = new QGroupBox(Q(kFirstPositionFrame));
  auto* first_row = new QHBoxLayout(first);
  for (int p = 0; p < 3; ++p) {
    first_[p] = new QRadioButton(QString::number(p + 1));
    first_row->addWidget(first_[p]);
  }
  first_[0]->setChecked(true);
  layout->addWidget(first);
  connect(coding_, &QRadioButton::toggled, first, &QGroupBox::setEnabled);

  auto* buttons = new QDialogButtonBox;
  assign_ = buttons->addButton("Assign", QDialogButtonBox::ActionRole);
  buttons->addButton(QDialogButtonBox::Ok);
  buttons->addButton(QDialogButtonBox::Cancel);
  connect(assign_, &QPushButton::clicked, this, &CodingRegionDialog::Assign);
  connect(buttons, &QDialogButtonBox::accepted, this, &CodingRegionDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &CodingRegionDialog::reject);
  layout->addWidget(buttons);
}

QRadioButton* CodingRegionDialog::FirstPosition(int position) const {
  return position >= 1 && position <= 3 ? first_[position - 1] : nullptr;
}

void CodingRegionDialog::Assign() {
  int position = 1;
  for (int p = 1; p <= 3; ++p)
    if (first_[p - 1]->isChecked()) position = p;
  Platform& ui = workbench_.Ui();
  if (const std::optional<std::string> refusal = session_.Assign(
          from_->text().toStdString(), to_->text().toStdString(), coding_->isChecked(), position)) {
    ui.MessageBox(*refusal, MsgIcon::kWarning);
    return;
  }
  if (ui.MessageBox(kAssignDoneQuestion, MsgIcon::kQuestion, MsgButtons::kYesNo) ==
      MsgAnswer::kYes)
    return;  // the dialog stays for the next region
  accept();
}

void CodingRegionDialog::accept() {
  Platform& ui = workbench_.Ui();
  if (const std::optional<StopCodonQuestion> stop = session_.StopQuestion()) {
    if (ui.MessageBox(stop->text, MsgIcon::kQuestion, MsgButtons::kYesNo) == MsgAnswer::kYes)
      session_.AcceptStopQuestion(*stop);
  }
  if (session_.Changed()) workbench_.SetStatus(1, "Processing Information...");
  try {
    session_.Commit(workbench_.Data());
    committed_ = true;
  } catch (const std::exception&) {
    ui.MessageBox(kCodonsModuleError, MsgIcon::kCritical);
  }
  workbench_.SetStatus(0);
  QDialog::accept();
}

}  // namespace ovelt
