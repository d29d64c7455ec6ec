#pragma once
// "MEGA Data File": how to read a MEGA file (layout and symbols), asked before it is read.

#include <QDialog>

#include "platform/platform.h"

class QLineEdit;
class QRadioButton;

namespace ovelt {

class MegaDialog : public QDialog {
  Q_OBJECT
 public:
  MegaDialog(const QString& file_name, QWidget* parent = nullptr);
  [[nodiscard]] MegaOptions Options() const;

 public slots:
  void accept() override;

 private:
  QRadioButton* interleaved_;
  QLineEdit* match_;
  QLineEdit* gap_;
  QLineEdit* missing_;
};

}  // namespace ovelt
