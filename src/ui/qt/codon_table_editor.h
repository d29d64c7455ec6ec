#pragma once
// TBPrefUnPref, the editor of preferred/unpreferred codon tables, with its two small dialogs:
// the table's name (Dialog) and a codon's status (Dialog1). The editing rules live in
// PrefTableEditor; this window shows the 64 codons in four by four blocks (first base by
// rows, second by columns, third inside each block) and collects the clicks. OK assigns the
// table of the second combo to the data and keeps the tables made or read here.

#include <QDialog>

#include <functional>
#include <optional>
#include <string>

#include "core/active_data.h"
#include "shell/pref_editor.h"
#include "platform/platform.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace ovelt {

inline constexpr const char* kOvpFilter = "OVELT Format (*.ovp)|*.ovp|All Files (*.*)|*.*";

// Dialog: the name of a new table. OK refuses reserved names with their message and stays.
class TableNameDialog : public QDialog {
  Q_OBJECT
 public:
  TableNameDialog(Platform& platform, QWidget* parent = nullptr);
  [[nodiscard]] std::string Name() const;
  void SetName(const std::string& name);

 public slots:
  void accept() override;

 private:
  Platform& platform_;
  QLineEdit* name_;
};

// Dialog1: the new status of one codon.
class CodonStatusDialog : public QDialog {
  Q_OBJECT
 public:
  CodonStatusDialog(const std::string& cell_text, QWidget* parent = nullptr);
  [[nodiscard]] CodonChoice Choice() const { return choice_; }
  void Choose(CodonChoice choice);

 private:
  CodonChoice choice_ = CodonChoice::kCancel;
};

class CodonTableEditor : public QDialog {
  Q_OBJECT
 public:
  CodonTableEditor(ActiveData& data, Platform& platform, QWidget* parent = nullptr);

  [[nodiscard]] PrefTableEditor& Session() { return session_; }
  [[nodiscard]] QTableWidget* Grid() const { return grid_; }
  // The cell of codon `index` (1..64) as row and column of the grid.
  [[nodiscard]] static std::pair<int, int> CellOf(int index);

  // The questions of the two small dialogs; tests replace them. By default the dialogs open.
  std::function<std::optional<std::string>()> AskName;
  std::function<CodonChoice(int index)> AskCodon;

  // The buttons, as clicks run them.
  void EditNewOrClose();
  void EditSelected();
  void DeleteSelected();
  void ReadTableFile();
  void SaveTableFile();
  void ClickCodon(int index);

 public slots:
  void accept() override;

 private:
  void ShowSession();
  void ShowMessage(const std::optional<std::string>& message);

  ActiveData& data_;
  Platform& platform_;
  PrefTableEditor session_;
  bool showing_ = false;  // the combos are being filled, not chosen
  QComboBox* codes_;
  QComboBox* tables_;
  QLabel* table_heading_;
  QLabel* code_heading_;
  QTableWidget* grid_;
  QLabel* legend_;
  QPushButton* edit_new_;
  QPushButton* edit_;
  QPushButton* delete_;
  QPushButton* read_;
  QPushButton* save_;
};

}  // namespace ovelt
