#pragma once
// The small dialog of the three gap and mutation settings; its face follows the command.

#include <QDialog>

#include "core/gap_settings.h"

class QRadioButton;

namespace ovelt {

class Form17Dialog : public QDialog {
  Q_OBJECT
 public:
  Form17Dialog(const Form17Face& face, int current_choice, QWidget* parent = nullptr);
  // 1 or 2: the choice made.
  [[nodiscard]] int Choice() const;
  void SetChoice(int choice);

 private:
  QRadioButton* first_;
  QRadioButton* second_;
};

}  // namespace ovelt
