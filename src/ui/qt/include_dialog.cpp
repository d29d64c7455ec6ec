#include "ui/qt/include_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "core/gap_settings.h"
#include "shell/workbench.h"

namespace ovelt {

IncludeDialog::IncludeDialog(Workbench& workbench, QWidget* parent)
    : QDialog(parent), workbench_(workbench) {
  const ActiveData& d = workbench.Data();
  setWindowTitle("Include / Exclude Sequences");
  auto* layout = new QVBoxLayout(this);

  auto* list = new QWidget;
  auto* list_layout = new QVBoxLayout(list);
  for (int16_t s = 1; s <= d.TotalSeqs; ++s) {
    auto* box = new QCheckBox(QString::number(s) + "  " +
                              QString::fromStdString(d.RawNames[static_cast<size_t>(s)]).trimmed());
    box->setChecked(d.SeqIncluded[static_cast<size_t>(s)]);
    list_layout->addWidget(box);
    boxes_.push_back(box);
  }
  auto* scroll = new QScrollArea;
  scroll->setWidget(list);
  scroll->setWidgetResizable(true);
  layout->addWidget(scroll);

  auto* row = new QHBoxLayout;
  auto* all = new QPushButton("Select All");
  auto* none = new QPushButton("Unselect All");
  connect(all, &QPushButton::clicked, this, [this] { SelectAll(true); });
  connect(none, &QPushButton::clicked, this, [this] { SelectAll(false); });
  sets_ = new QComboBox;
  if (d.SetCount() == 0) {
    sets_->addItem("No Population Defined");
  } else {
    sets_->addItem("Select Sequence Sets...");
    for (int32_t s = 1; s <= d.SetCount(); ++s)
      sets_->addItem(QString::fromStdString(d.SequenceSets[static_cast<size_t>(s)].nombre()));
  }
  connect(sets_, &QComboBox::activated, this, [this](int index) {
    const ActiveData& ad = workbench_.Data();
    if (index < 1 || index > ad.SetCount()) return;
    SelectAll(false);
    for (double member : ad.SequenceSets[static_cast<size_t>(index)].members()) {
      const auto seq = static_cast<size_t>(member);
      if (seq >= 1 && seq <= boxes_.size()) boxes_[seq - 1]->setChecked(true);
    }
  });
  row->addWidget(all);
  row->addWidget(none);
  row->addWidget(sets_);
  layout->addLayout(row);

  const Form17Face face = Form17FaceFor(kGapsInSetsCommand);
  auto* gaps = new QGroupBox(QString::fromStdString(face.frame));
  auto* gaps_layout = new QVBoxLayout(gaps);
  gaps_active_ = new QRadioButton(QString::fromStdString(face.choice1));
  gaps_file_ = new QRadioButton(QString::fromStdString(face.choice2));
  gaps_layout->addWidget(gaps_active_);
  gaps_layout->addWidget(gaps_file_);
  SetGapsInSets(d.GapsInSets);
  layout->addWidget(gaps);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &IncludeDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &IncludeDialog::reject);
  layout->addWidget(buttons);
  resize(420, 520);
}

void IncludeDialog::SelectAll(bool on) {
  for (QCheckBox* box : boxes_) box->setChecked(on);
}

void IncludeDialog::SetGapsInSets(int value) {
  (value == 2 ? gaps_file_ : gaps_active_)->setChecked(true);
}

void IncludeDialog::accept() {
  std::vector<bool> ticks(boxes_.size() + 1, false);
  for (size_t i = 0; i < boxes_.size(); ++i) ticks[i + 1] = boxes_[i]->isChecked();
  const int16_t gaps = gaps_file_->isChecked() ? 2 : 1;
  if (!workbench_.IncludeSequences(ticks, gaps)) return;  // the message was shown; stay open
  QDialog::accept();
}

void IncludeDialog::keyPressEvent(QKeyEvent* event) {
  // Q and A, in either case, move up and down the list of check boxes.
  if (event->key() == Qt::Key_Q || event->key() == Qt::Key_A) {
    for (size_t i = 0; i < boxes_.size(); ++i) {
      if (!boxes_[i]->hasFocus()) continue;
      const size_t next =
          event->key() == Qt::Key_Q ? (i == 0 ? 0 : i - 1) : std::min(i + 1, boxes_.size() - 1);
      boxes_[next]->setFocus();
      return;
    }
  }
  QDialog::keyPressEvent(event);
}

}  // namespace ovelt
