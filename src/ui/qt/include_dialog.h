#pragma once
// "Include / Exclude Sequences": one check box per file sequence, the choice of gaps in
// sequence sets, and a set combo that ticks the members of a set. Q and A move the focus up
// and down. OK hands the ticks to the Workbench; a refusal keeps the dialog open.

#include <QDialog>

#include <vector>

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace ovelt {

class Workbench;

class IncludeDialog : public QDialog {
  Q_OBJECT
 public:
  IncludeDialog(Workbench& workbench, QWidget* parent = nullptr);
  [[nodiscard]] const std::vector<QCheckBox*>& Boxes() const { return boxes_; }
  void SelectAll(bool on);
  void SetGapsInSets(int value);

 public slots:
  void accept() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Workbench& workbench_;
  std::vector<QCheckBox*> boxes_;  // 0-based: file sequence i + 1
  QComboBox* sets_;
  QRadioButton* gaps_active_;
  QRadioButton* gaps_file_;
};

}  // namespace ovelt
