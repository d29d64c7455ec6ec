#pragma once
// The colours dialog `colores` ("Change Color"): one button per colour of the chart (legend,
// axes, significant points, the data series, background), each showing its colour and opening
// the colour chooser. OK hands the new palette back; Cancel changes nothing.

#include <QDialog>

#include <vector>

#include "ui/qt/graph_painter.h"

class QPushButton;

namespace ovelt {

inline constexpr const char* kChangeColorCaption = "Change Color";

class GraphColoursDialog : public QDialog {
  Q_OBJECT
 public:
  explicit GraphColoursDialog(const GraphPalette& palette, QWidget* parent = nullptr);

  [[nodiscard]] const GraphPalette& Palette() const { return palette_; }
  // The names of the colours, in the order of the buttons.
  [[nodiscard]] static std::vector<QString> ColourNames();
  // Sets colour `index` (in the order of ColourNames), as the chooser does.
  void SetColour(int index, const QColor& colour);
  [[nodiscard]] QPushButton* Button(int index) const { return buttons_.at(static_cast<size_t>(index)); }

 private:
  QColor& Slot(int index);
  void ShowSwatch(int index);

  GraphPalette palette_;
  std::vector<QPushButton*> buttons_;
};

}  // namespace ovelt
