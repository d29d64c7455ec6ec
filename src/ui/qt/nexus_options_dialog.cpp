#include "ui/qt/nexus_options_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QValidator>
#include <QVBoxLayout>

namespace ovelt {

namespace {

// Keys that NEXUS reserves, and the nucleotide letters, never reach a symbol field.
class SymbolValidator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int&) const override {
    const std::string typed = input.toStdString();
    return TypedSymbol(typed) == typed ? Acceptable : Invalid;
  }
};

QLineEdit* SymbolField(const char* name, QWidget* owner) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setMaxLength(1);
  field->setMaximumWidth(40);
  field->setValidator(new SymbolValidator(owner));
  return field;
}

}  // namespace

NexusOptionsDialog::NexusOptionsDialog(FormatAttributes& format, Platform& platform,
                                       QWidget* parent)
    : QDialog(parent), format_(format), platform_(platform) {
  setWindowTitle(kNexusOptionsTitle);
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;

  auto* version_frame = new QGroupBox("Nexus File Format");
  auto* version_layout = new QVBoxLayout(version_frame);
  version1_ = new QRadioButton("NEXUS v. 1");
  version1_->setObjectName("version1");
  old_version_ = new QRadioButton("NEXUS old version");
  old_version_->setObjectName("oldVersion");
  version_layout->addWidget(version1_);
  version_layout->addWidget(old_version_);
  top->addWidget(version_frame);

  auto* delimiter_frame = new QGroupBox("Line Delimiter");
  auto* delimiter_layout = new QVBoxLayout(delimiter_frame);
  const char* const delimiter_texts[] = {"CR + LF  ( PC )", "CR  ( MAC )", "LF  ( UNIX )"};
  const char* const delimiter_names[] = {"crlf", "cr", "lf"};
  for (int i = 0; i < 3; ++i) {
    delimiters_[i] = new QRadioButton(delimiter_texts[i]);
    delimiters_[i]->setObjectName(delimiter_names[i]);
    delimiter_layout->addWidget(delimiters_[i]);
  }
  top->addWidget(delimiter_frame);
  layout->addLayout(top);

  auto* symbols = new QGroupBox("Symbols");
  auto* grid = new QGridLayout(symbols);
  use_match_ = new QCheckBox("Use Matching Symbol:");
  use_match_->setObjectName("useMatch");
  match_ = SymbolField("matchSymbol", this);
  missing_ = SymbolField("missingSymbol", this);
  gap_ = SymbolField("gapSymbol", this);
  grid->addWidget(use_match_, 0, 0);
  grid->addWidget(match_, 0, 1);
  grid->addWidget(new QLabel("Missing Symbol:"), 1, 0);
  grid->addWidget(missing_, 1, 1);
  grid->addWidget(new QLabel("Gap Symbol:"), 2, 0);
  grid->addWidget(gap_, 2, 1);
  grid->setColumnStretch(2, 1);
  layout->addWidget(symbols);

  auto* interleave = new QHBoxLayout;
  interleaved_ = new QCheckBox("Interleaved.  Nucleotides per block:");
  interleaved_->setObjectName("interleaved");
  block_ = new QSpinBox;
  block_->setObjectName("blockLength");
  // Zero may be typed so that OK can say what the least block is.
  block_->setRange(0, 1000000);
  interleave->addWidget(interleaved_);
  interleave->addWidget(block_);
  interleave->addStretch(1);
  layout->addLayout(interleave);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* defaults = buttons->addButton("Default", QDialogButtonBox::ResetRole);
  defaults->setObjectName("default");
  connect(defaults, &QPushButton::clicked, this, &NexusOptionsDialog::ShowDefaults);
  connect(buttons, &QDialogButtonBox::accepted, this, &NexusOptionsDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);

  Show(NexusSaveOptionsFrom(format_));
}

void NexusOptionsDialog::Show(const NexusSaveOptions& o) {
  (o.NexusVersion == 1 ? old_version_ : version1_)->setChecked(true);
  delimiters_[o.LineDelimiter - 1]->setChecked(true);
  use_match_->setChecked(o.MatchSymbolOn);
  match_->setText(QString::fromStdString(o.MatchSymbol));
  missing_->setText(QString::fromStdString(o.MissingSymbol));
  gap_->setText(QString::fromStdString(o.GapSymbol));
  interleaved_->setChecked(o.Interleaved);
  block_->setValue(o.BlockLength);
}

void NexusOptionsDialog::ShowDefaults() { Show(DefaultNexusSaveOptions()); }

NexusSaveOptions NexusOptionsDialog::Options() const {
  NexusSaveOptions o;
  o.NexusVersion = old_version_->isChecked() ? int16_t{1} : int16_t{2};
  for (int i = 0; i < 3; ++i)
    if (delimiters_[i]->isChecked()) o.LineDelimiter = static_cast<int16_t>(i + 1);
  o.MatchSymbolOn = use_match_->isChecked();
  o.MatchSymbol = match_->text().toStdString();
  o.MissingSymbol = missing_->text().toStdString();
  o.GapSymbol = gap_->text().toStdString();
  o.Interleaved = interleaved_->isChecked();
  o.BlockLength = block_->value();
  return o;
}

void NexusOptionsDialog::accept() {
  const NexusSaveOptions options = Options();
  if (auto refusal = ValidateNexusSaveOptions(options)) {
    last_refused_ = true;
    platform_.MessageBox(refusal->Text, MsgIcon::kWarning, MsgButtons::kOk, refusal->Title);
    return;
  }
  last_refused_ = false;
  ApplyNexusSaveOptions(options, format_);
  QDialog::accept();
}

}  // namespace ovelt
