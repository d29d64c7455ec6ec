#include "ui/qt/graph_colours_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace ovelt {

namespace {

constexpr int kSwatchWidth = 60;
constexpr int kSwatchHeight = 16;
constexpr int kFixedColours = 3;  // legend, axes, significant points; then the series

}  // namespace

std::vector<QString> GraphColoursDialog::ColourNames() {
  std::vector<QString> names{"Legend", "Axes", "Significant Points"};
  for (int i = 1; i <= kSeriesColours; ++i) names.push_back(QString("Data Series %1").arg(i));
  names.push_back("Background");
  return names;
}

GraphColoursDialog::GraphColoursDialog(const GraphPalette& palette, QWidget* parent)
    : QDialog(parent), palette_(palette) {
  setWindowTitle(kChangeColorCaption);
  auto* form = new QFormLayout;
  const std::vector<QString> names = ColourNames();
  for (size_t i = 0; i < names.size(); ++i) {
    auto* button = new QPushButton;
    button->setIconSize(QSize(kSwatchWidth, kSwatchHeight));
    buttons_.push_back(button);
    form->addRow(names[i] + ":", button);
    const int index = static_cast<int>(i);
    connect(button, &QPushButton::clicked, this, [this, index, name = names[i]] {
      const QColor chosen = QColorDialog::getColor(Slot(index), this, name);
      if (chosen.isValid()) SetColour(index, chosen);
    });
    ShowSwatch(index);
  }
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(box);
}

QColor& GraphColoursDialog::Slot(int index) {
  if (index == 0) return palette_.Legend;
  if (index == 1) return palette_.Axes;
  if (index == 2) return palette_.Significant;
  if (index < kFixedColours + kSeriesColours)
    return palette_.Series[static_cast<size_t>(index - kFixedColours)];
  return palette_.Background;
}

void GraphColoursDialog::SetColour(int index, const QColor& colour) {
  Slot(index) = colour;
  ShowSwatch(index);
}

void GraphColoursDialog::ShowSwatch(int index) {
  QPixmap swatch(kSwatchWidth, kSwatchHeight);
  swatch.fill(Slot(index));
  buttons_.at(static_cast<size_t>(index))->setIcon(QIcon(swatch));
}

}  // namespace ovelt
