#include "ui/qt/data_viewer_options.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "shell/viewer_texts.h"

namespace ovelt {

DataViewerOptionsDialog::DataViewerOptionsDialog(const ViewerDisplayOptions& current,
                                                 QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(kViewerOptionsTitle);
  lower_ = new QCheckBox(kLowerCaseOptionText);
  lower_->setChecked(current.LowerCasePolymorphic);
  dot_ = new QCheckBox(kDotOptionText);
  dot_->setChecked(current.DotForFirstSequence);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lower_);
  layout->addWidget(dot_);
  layout->addSpacing(8);
  layout->addWidget(buttons);
}

ViewerDisplayOptions DataViewerOptionsDialog::Options() const {
  return {lower_->isChecked(), dot_->isChecked()};
}

}  // namespace ovelt
