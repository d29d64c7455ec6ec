#pragma once
// "Genetic Code": the ten codes in a combo, and the grid of the code chosen there, redrawn at
// once when the choice changes. Only OK stores the index (and rebuilds the coding tables when
// it changed); Cancel leaves the current code.

#include <QDialog>

class QComboBox;
class QTableWidget;

namespace ovelt {

class Workbench;

class GeneticCodeDialog : public QDialog {
  Q_OBJECT
 public:
  GeneticCodeDialog(Workbench& workbench, QWidget* parent = nullptr);

  [[nodiscard]] QComboBox* Codes() const { return codes_; }
  [[nodiscard]] QTableWidget* Grid() const { return grid_; }
  // True once OK stored a code other than the current one.
  [[nodiscard]] bool Changed() const { return changed_; }
  // Text of the grid cell of the codon with ranks a, b, c (1..4 for U, C, A, G).
  [[nodiscard]] QString Cell(int a, int b, int c) const;

 public slots:
  void accept() override;

 private:
  // Draws the table of code `index` (1..10).
  void ShowCode(int index);

  Workbench& workbench_;
  QComboBox* codes_;
  QTableWidget* grid_;
  bool changed_ = false;
};

}  // namespace ovelt
