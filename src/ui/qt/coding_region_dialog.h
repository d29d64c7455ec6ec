#pragma once
// "Protein Coding Regions ": the region boxes, the choice between a noncoding and a protein
// coding region with the codon position of its first site, and the buttons "Assign", "OK" and
// "Cancel". Regions are assigned to a copy (coding_region_dialog_logic.h); OK, or No to "assign
// more regions?", writes the copy into the workbench's data after the stop-codon question.

#include <QDialog>

#include "shell/coding_region_dialog_logic.h"

class QLineEdit;
class QPushButton;
class QRadioButton;

namespace ovelt {

class Workbench;

class CodingRegionDialog : public QDialog {
  Q_OBJECT
 public:
  CodingRegionDialog(Workbench& workbench, QWidget* parent = nullptr);

  [[nodiscard]] QLineEdit* From() const { return from_; }
  [[nodiscard]] QLineEdit* To() const { return to_; }
  [[nodiscard]] QRadioButton* NonCoding() const { return noncoding_; }
  [[nodiscard]] QRadioButton* Coding() const { return coding_; }
  // The codon position of the first site: 1, 2 or 3.
  [[nodiscard]] QRadioButton* FirstPosition(int position) const;
  [[nodiscard]] QPushButton* AssignButton() const { return assign_; }
  // True once the data were written with a changed coding map.
  [[nodiscard]] bool Changed() const { return committed_ && session_.Changed(); }

  // "Assign" of the region in the boxes.
  void Assign();

 public slots:
  void accept() override;

 private:
  Workbench& workbench_;
  CodingRegionSession session_;
  QLineEdit* from_;
  QLineEdit* to_;
  QRadioButton* noncoding_;
  QRadioButton* coding_;
  QRadioButton* first_[3];
  QPushButton* assign_;
  bool committed_ = false;
};

}  // namespace ovelt
