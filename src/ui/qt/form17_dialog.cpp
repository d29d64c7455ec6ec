#include "ui/qt/form17_dialog.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace ovelt {

Form17Dialog::Form17Dialog(const Form17Face& face, int current_choice, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(QString::fromStdString(face.title));
  auto* layout = new QVBoxLayout(this);
  auto* frame = new QGroupBox(QString::fromStdString(face.frame));
  auto* frame_layout = new QVBoxLayout(frame);
  first_ = new QRadioButton(QString::fromStdString(face.choice1));
  second_ = new QRadioButton(QString::fromStdString(face.choice2));
  for (QRadioButton* b : {first_, second_}) {
    b->setStyleSheet("QRadioButton { max-width: 520px; }");
    frame_layout->addWidget(b);
  }
  SetChoice(current_choice);
  layout->addWidget(frame);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
}

int Form17Dialog::Choice() const { return second_->isChecked() ? 2 : 1; }

void Form17Dialog::SetChoice(int choice) { (choice == 2 ? second_ : first_)->setChecked(true); }

}  // namespace ovelt
