#pragma once
// Form2, "Nexus File Format. Options": how NEXUS files of the open data are written (version,
// line ends, symbols, interleaving). OK checks the fields and stores them in the file's format
// attributes; a refused OK shows the message and stays open; Cancel changes nothing.

#include <QDialog>

#include "core/active_data.h"
#include "formats/nexus_writer_options.h"
#include "platform/platform.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace ovelt {

class NexusOptionsDialog : public QDialog {
  Q_OBJECT
 public:
  NexusOptionsDialog(FormatAttributes& format, Platform& platform, QWidget* parent = nullptr);

  // The fields as the controls stand.
  [[nodiscard]] NexusSaveOptions Options() const;
  // Whether the last OK was refused (the dialog stayed open).
  [[nodiscard]] bool LastOkRefused() const { return last_refused_; }

 public slots:
  void accept() override;
  // The "Default" button.
  void ShowDefaults();

 private:
  void Show(const NexusSaveOptions& options);

  FormatAttributes& format_;
  Platform& platform_;
  QRadioButton* version1_;
  QRadioButton* old_version_;
  QRadioButton* delimiters_[3];
  QCheckBox* use_match_;
  QLineEdit* match_;
  QLineEdit* missing_;
  QLineEdit* gap_;
  QCheckBox* interleaved_;
  QSpinBox* block_;
  bool last_refused_ = false;
};

}  // namespace ovelt
