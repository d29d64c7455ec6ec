#include "ui/qt/format_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/genetic_code.h"
#include "shell/workbench.h"

namespace ovelt {

namespace {
QString Q(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

FormatDialog::FormatDialog(Workbench& workbench, QWidget* parent)
    : QDialog(parent), workbench_(workbench) {
  const GenomeFormatChoice current = CurrentGenomeFormat(workbench.Data());
  setWindowTitle("Nucleotide Sequence Format");
  auto* layout = new QHBoxLayout(this);

  // Each frame is its own group, so that its radio buttons exclude one another.
  auto* location = new QGroupBox("Chromosomal Location");
  auto* location_grid = new QVBoxLayout(location);
  for (int16_t code = 0; code < kChromosomalLocationCount; ++code) {
    location_[code] = new QRadioButton(Q(ChromosomalLocationText(code)));
    location_grid->addWidget(location_[code]);
  }
  location_[current.ChromosomalLocation >= 0 && current.ChromosomalLocation < 8
                ? current.ChromosomalLocation
                : 0]
      ->setChecked(true);
  layout->addWidget(location);

  auto* right = new QVBoxLayout;
  auto* state = new QGroupBox("Genomic State");
  auto* state_column = new QVBoxLayout(state);
  auto* type = new QGroupBox("Nucleotide Sequence");
  auto* type_column = new QVBoxLayout(type);
  for (int16_t v = 0; v < 2; ++v) {
    state_[v] = new QRadioButton(Q(GenomeStateText(v)));
    state_column->addWidget(state_[v]);
    type_[v] = new QRadioButton(Q(NucleotideTypeText(v)));
    type_column->addWidget(type_[v]);
  }
  state_[current.GenomeState == 1 ? 1 : 0]->setChecked(true);
  type_[current.NucleotideType == 1 ? 1 : 0]->setChecked(true);
  right->addWidget(state);
  right->addWidget(type);
  right->addStretch(1);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                       Qt::Vertical);
  connect(buttons, &QDialogButtonBox::accepted, this, &FormatDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &FormatDialog::reject);
  right->addWidget(buttons);
  layout->addLayout(right);
}

GenomeFormatChoice FormatDialog::Choice() const {
  GenomeFormatChoice choice;
  for (int16_t code = 0; code < kChromosomalLocationCount; ++code)
    if (location_[code]->isChecked()) choice.ChromosomalLocation = code;
  choice.GenomeState = state_[1]->isChecked() ? 1 : 0;
  choice.NucleotideType = type_[1]->isChecked() ? 1 : 0;
  return choice;
}

void FormatDialog::accept() {
  const GenomeFormatChoice choice = Choice();
  if (const std::optional<std::string> question = DiploidQuestion(workbench_.Data(), choice)) {
    if (workbench_.Ui().MessageBox(*question, MsgIcon::kQuestion, MsgButtons::kOkCancel) !=
        MsgAnswer::kOk)
      return;  // the dialog stays
  }
  if (!ApplyGenomeFormat(workbench_.Data(), choice, redraw_)) return;
  QDialog::accept();
}

}  // namespace ovelt
