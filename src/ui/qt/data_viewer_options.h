#pragma once
// `Form4`, "Display Data Options": the two display flags of the data viewer. The caller reads
// them only when the dialog is accepted.

#include <QDialog>

#include "shell/viewer_cell.h"

class QCheckBox;

namespace ovelt {

class DataViewerOptionsDialog : public QDialog {
  Q_OBJECT
 public:
  explicit DataViewerOptionsDialog(const ViewerDisplayOptions& current,
                                   QWidget* parent = nullptr);
  [[nodiscard]] ViewerDisplayOptions Options() const;
  [[nodiscard]] QCheckBox* LowerCaseBox() const { return lower_; }
  [[nodiscard]] QCheckBox* DotBox() const { return dot_; }

 private:
  QCheckBox* lower_;
  QCheckBox* dot_;
};

}  // namespace ovelt
