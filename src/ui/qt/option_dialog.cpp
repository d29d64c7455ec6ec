#include "ui/qt/option_dialog.h"

#include <QDialogButtonBox>
#include <QMessageBox>

#include "core/region_check.h"

namespace ovelt {

namespace {
QString Q(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

OptionDialog::OptionDialog(const QString& title, QWidget* parent) : QDialog(parent) {
  setWindowTitle(title);
  auto* layout = new QVBoxLayout(this);
  form_ = new QFormLayout;
  layout->addLayout(form_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &OptionDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &OptionDialog::reject);
  layout->addWidget(buttons);
}

void OptionDialog::accept() {
  last_refused_ = false;
  for (const auto& read : readers_) {
    if (!read()) {
      last_refused_ = true;
      QMessageBox::warning(this, "Ovelt", Q(kInvalidSelection));
      return;  // the dialog stays open
    }
  }
  if (validator_) {
    if (auto failure = validator_()) {
      last_refused_ = true;
      QMessageBox::warning(this, "Ovelt", Q(*failure));
      return;
    }
  }
  QDialog::accept();
}

void QtOptionBuilder::Region(int32_t& from, int32_t& to) {
  auto* from_edit = new QLineEdit(QString::number(from < 1 ? 1 : from));
  auto* to_edit = new QLineEdit(QString::number(to < 1 ? data_.NumSites : to));
  auto* row = new QHBoxLayout;
  row->addWidget(from_edit);
  row->addWidget(new QLabel("to:"));
  row->addWidget(to_edit);
  row->addWidget(new QLabel("Last nt. = " + QString::number(data_.NumSites)));
  dialog_.Form()->addRow("From site:", row);
  // Empty or unreadable boxes are an invalid selection, as a region out of range is.
  const int32_t sites = data_.NumSites;  // the builder does not outlive the dialog's set-up
  dialog_.AddReader([from_edit, to_edit, &from, &to, sites] {
    bool ok_from = false, ok_to = false;
    const int f = from_edit->text().trimmed().toInt(&ok_from);
    const int t = to_edit->text().trimmed().toInt(&ok_to);
    if (!ok_from || !ok_to || !RegionIsValid(f, t, sites)) return false;
    from = f;
    to = t;
    return true;
  });
}

void QtOptionBuilder::SetIndex(int16_t& index, const OptionField& field) {
  auto* combo = new QComboBox;
  combo->addItem("All included sequences");
  for (int32_t s = 1; s <= data_.SetCount(); ++s)
    combo->addItem(Q(data_.SequenceSets[static_cast<size_t>(s)].nombre()));
  combo->setCurrentIndex(index >= 0 && index <= data_.SetCount() ? index : 0);
  dialog_.Form()->addRow(Q(field.label), combo);
  dialog_.AddReader([combo, &index] {
    index = static_cast<int16_t>(combo->currentIndex());
    return true;
  });
}

void QtOptionBuilder::Flag(bool& value, const OptionField& field) {
  auto* box = new QCheckBox(Q(field.label));
  box->setChecked(value);
  box->setObjectName(Q(field.key));
  dialog_.Form()->addRow(box);
  dialog_.AddReader([box, &value] {
    value = box->isChecked();
    return true;
  });
}

void QtOptionBuilder::Integer(int32_t& value, const OptionField& field, int64_t, int64_t) {
  auto* edit = new QLineEdit(QString::number(value));
  edit->setObjectName(Q(field.key));
  dialog_.Form()->addRow(Q(field.label), edit);
  dialog_.AddReader([edit, &value] {
    bool ok = false;
    const int typed = edit->text().trimmed().toInt(&ok);
    if (ok) value = typed;
    return ok;
  });
}

void QtOptionBuilder::Real(double& value, const OptionField& field, double, double) {
  auto* edit = new QLineEdit(QString::number(value));
  edit->setObjectName(Q(field.key));
  dialog_.Form()->addRow(Q(field.label), edit);
  dialog_.AddReader([edit, &value] {
    bool ok = false;
    const double typed = edit->text().trimmed().toDouble(&ok);
    if (ok) value = typed;
    return ok;
  });
}

void QtOptionBuilder::Choice(int16_t& value, const OptionField& field,
                             const std::vector<std::string>& texts, int16_t first_value) {
  auto* group = new QGroupBox(Q(field.label));
  auto* layout = new QVBoxLayout(group);
  std::vector<QRadioButton*> buttons;
  for (size_t i = 0; i < texts.size(); ++i) {
    auto* button = new QRadioButton(Q(texts[i]));
    button->setChecked(value == first_value + static_cast<int16_t>(i));
    layout->addWidget(button);
    buttons.push_back(button);
  }
  dialog_.Form()->addRow(group);
  dialog_.AddReader([buttons, &value, first_value] {
    for (size_t i = 0; i < buttons.size(); ++i)
      if (buttons[i]->isChecked()) value = static_cast<int16_t>(first_value + static_cast<int16_t>(i));
    return true;
  });
}

void QtOptionBuilder::Text(std::string& value, const OptionField& field) {
  auto* edit = new QLineEdit(Q(value));
  edit->setObjectName(Q(field.key));
  dialog_.Form()->addRow(Q(field.label), edit);
  dialog_.AddReader([edit, &value] {
    value = edit->text().toStdString();
    return true;
  });
}

}  // namespace ovelt
