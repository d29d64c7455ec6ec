#include "ui/qt/genetic_code_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "core/genetic_code_choice.h"
#include "shell/genetic_code_dialog_logic.h"
#include "shell/workbench.h"

namespace ovelt {

namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// The grid: a column of first bases, the four columns of second bases, a column of third
// bases; four rows per first base.
constexpr int kFirstColumn = 0;
constexpr int kThirdColumn = 5;

}  // namespace

GeneticCodeDialog::GeneticCodeDialog(Workbench& workbench, QWidget* parent)
    : QDialog(parent), workbench_(workbench) {
  const ActiveData& d = workbench.Data();
  setWindowTitle("Genetic Code");
  auto* layout = new QVBoxLayout(this);
  auto* frame = new QGroupBox(Q(GeneticCodeFrameTitle(d)));
  auto* inner = new QVBoxLayout(frame);
  codes_ = new QComboBox;
  for (const std::string& name : GeneticCodeChoices()) codes_->addItem(Q(name));
  inner->addWidget(codes_);
  inner->addWidget(new QLabel(Q(kCurrentGeneticCodeLabel)));

  const std::vector<std::string>& bases = CodonBaseLabels();
  grid_ = new QTableWidget(16, 6);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  grid_->verticalHeader()->hide();
  QStringList heads{"1st"};
  for (int b = 0; b < 4; ++b) heads << QString("%1 %2").arg(b + 1).arg(Q(bases[b]));
  heads << "3rd";
  grid_->setHorizontalHeaderLabels(heads);
  for (int a = 0; a < 4; ++a) {
    auto* first = new QTableWidgetItem(QString("%1 %2").arg(a + 1).arg(Q(bases[a])));
    first->setTextAlignment(Qt::AlignCenter);
    grid_->setItem(a * 4, kFirstColumn, first);
    grid_->setSpan(a * 4, kFirstColumn, 4, 1);
    for (int c = 0; c < 4; ++c) {
      auto* third = new QTableWidgetItem(QString("%1 %2").arg(c + 1).arg(Q(bases[c])));
      third->setTextAlignment(Qt::AlignCenter);
      grid_->setItem(a * 4 + c, kThirdColumn, third);
    }
  }
  QFont fixed("Monospace");
  fixed.setStyleHint(QFont::TypeWriter);
  grid_->setFont(fixed);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->verticalHeader()->setDefaultSectionSize(22);
  inner->addWidget(grid_);
  layout->addWidget(frame);

  const int16_t current = d.Format.GeneticCodeIndex >= 1 ? d.Format.GeneticCodeIndex : 1;
  codes_->setCurrentIndex(current - 1);
  ShowCode(current);
  // Choosing an entry redraws the grid at once; nothing is stored before OK.
  connect(codes_, &QComboBox::currentIndexChanged, this,
          [this](int row) { ShowCode(row + 1); });

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &GeneticCodeDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &GeneticCodeDialog::reject);
  layout->addWidget(buttons);
  resize(520, 560);
}

void GeneticCodeDialog::ShowCode(int index) {
  const GeneticCodeTable table = BuildGeneticCode(static_cast<int16_t>(index));
  for (int a = 1; a <= 4; ++a)
    for (int b = 1; b <= 4; ++b)
      for (int c = 1; c <= 4; ++c) {
        auto* item = new QTableWidgetItem(Q(CodonGridCell(table, a, b, c)));
        if (table.IsStop((a - 1) * 16 + (b - 1) * 4 + c)) item->setForeground(Qt::red);
        grid_->setItem((a - 1) * 4 + (c - 1), b, item);
      }
}

QString GeneticCodeDialog::Cell(int a, int b, int c) const {
  const QTableWidgetItem* item = grid_->item((a - 1) * 4 + (c - 1), b);
  return item == nullptr ? QString() : item->text();
}

void GeneticCodeDialog::accept() {
  const auto index = static_cast<int16_t>(codes_->currentIndex() + 1);
  if (index != workbench_.Data().Format.GeneticCodeIndex) {
    workbench_.SetStatus(1, "Processing Information...");
    changed_ = ChangeGeneticCode(workbench_.Data(), index);
    workbench_.SetStatus(0);
  }
  QDialog::accept();
}

}  // namespace ovelt
