#pragma once
// "Nucleotide Sequence Format": the frames "Chromosomal Location", "Genomic State" and
// "Nucleotide Sequence", offering the values of the current file. OK stores them; a diploid
// prokaryotic, mitochondrial or chloroplast genome is confirmed first, and Cancel of that
// question keeps the dialog open. Cancel of the dialog changes nothing.

#include <QDialog>

#include "shell/format_dialog_logic.h"

class QRadioButton;

namespace ovelt {

class Workbench;

class FormatDialog : public QDialog {
  Q_OBJECT
 public:
  FormatDialog(Workbench& workbench, QWidget* parent = nullptr);

  [[nodiscard]] QRadioButton* Location(int code) const { return location_[code]; }
  [[nodiscard]] QRadioButton* State(int state) const { return state_[state]; }
  [[nodiscard]] QRadioButton* Type(int type) const { return type_[type]; }
  [[nodiscard]] GenomeFormatChoice Choice() const;
  // True once OK stored a new nucleotide type: a data viewer redraws.
  [[nodiscard]] bool NucleotideTypeChanged() const { return redraw_; }

 public slots:
  void accept() override;

 private:
  Workbench& workbench_;
  QRadioButton* location_[8];
  QRadioButton* state_[2];
  QRadioButton* type_[2];
  bool redraw_ = false;
};

}  // namespace ovelt
