#pragma once
// "Save / Export Data As...": the choice of the format the included data are written in. The
// writing itself, with its notices, save dialog and messages, is ExportDataFile's. This file
// also registers the other file-writing entries of the File and Data menus on the main window.

#include <QDialog>
#include <vector>

class QRadioButton;

namespace ovelt {

class MainWindow;

class ExportDialog : public QDialog {
  Q_OBJECT
 public:
  explicit ExportDialog(QWidget* parent = nullptr);

  // Menu index of the chosen writer (FASTA first).
  [[nodiscard]] int MenuIndex() const;
  void SelectMenuIndex(int menu_index);

 private:
  std::vector<std::pair<int, QRadioButton*>> choices_;
};

// export_Click, MenuUpdateNEXUS_Click, MenuSalvarData_Click and MenuGCPreferentTable_Click.
void AddExportHandlers(MainWindow& window);

}  // namespace ovelt
