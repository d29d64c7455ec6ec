#pragma once
// The two set dialogs. "Define Sequence Sets": the file's sequences in two lists ("Excluded" on
// the left, "Included List" on the right), a combo of the sets headed by "New Sequence Set",
// and the buttons that add, save, rename and remove sets. "Include/Exclude Populations": the
// same two-list form for whole sets. Both edit a working copy (set_dialog_logic.h) and write it
// into the workbench's data only on OK.

#include <QDialog>

#include <functional>
#include <optional>
#include <string>

#include "shell/set_dialog_logic.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace ovelt {

class Workbench;

// DialogGF: asks "Please write the Sequence Set name: ". What is typed passes the key filter of
// set names (a blank becomes "_", anything but letters and digits is dropped); Enter is OK.
class SetNameDialog : public QDialog {
  Q_OBJECT
 public:
  explicit SetNameDialog(QWidget* parent = nullptr);
  [[nodiscard]] QLineEdit* Field() const { return field_; }
  [[nodiscard]] std::string Name() const;

 private:
  QLineEdit* field_;
};

// The two lists with their move and selection buttons, shared by both dialogs.
class TwoListPanel : public QWidget {
  Q_OBJECT
 public:
  TwoListPanel(const QString& include_caption, const QString& exclude_caption,
               QWidget* parent = nullptr);
  [[nodiscard]] QListWidget* Left() const { return left_; }
  [[nodiscard]] QListWidget* Right() const { return right_; }
  // Fills a list with (number, text) entries; the number is kept as the item's data.
  static void Fill(QListWidget* list, const std::vector<std::pair<int32_t, std::string>>& rows);
  // Numbers of the selected entries of a list, in list order.
  [[nodiscard]] static std::vector<int32_t> Selected(const QListWidget* list);

 signals:
  void IncludeRequested(const std::vector<int32_t>& numbers);
  void ExcludeRequested(const std::vector<int32_t>& numbers);

 private:
  QListWidget* left_;
  QListWidget* right_;
};

class DefineSetsDialog : public QDialog {
  Q_OBJECT
 public:
  DefineSetsDialog(Workbench& workbench, QWidget* parent = nullptr);

  [[nodiscard]] const DefineSetsSession& Session() const { return session_; }
  [[nodiscard]] TwoListPanel* Lists() const { return lists_; }
  [[nodiscard]] QComboBox* Sets() const { return sets_; }
  [[nodiscard]] QPushButton* AddButton() const { return add_; }
  [[nodiscard]] QPushButton* SaveButton() const { return save_; }
  [[nodiscard]] QPushButton* RenameButton() const { return rename_; }
  [[nodiscard]] QPushButton* RemoveButton() const { return remove_; }

  // The user chooses combo entry `index` (asks to save a changed set first).
  void ChooseSet(int index);

 public slots:
  void accept() override;

 private:
  void AddSet();
  void SaveSet();
  void RenameSet();
  void RemoveSet();
  // Asks for a name; nullopt when the user cancels.
  std::optional<std::string> AskName(const QString& initial);
  // Asks "Update <name>" while the chosen set has unsaved changes and saves on Yes.
  void OfferSave();
  void Show(const SetDialogMessage& message);
  void Reload();

  Workbench& workbench_;
  DefineSetsSession session_;
  TwoListPanel* lists_;
  QComboBox* sets_;
  QPushButton* add_;
  QPushButton* save_;
  QPushButton* rename_;
  QPushButton* remove_;
};

class ActivePopulationsDialog : public QDialog {
  Q_OBJECT
 public:
  ActivePopulationsDialog(Workbench& workbench, QWidget* parent = nullptr);
  [[nodiscard]] TwoListPanel* Lists() const { return lists_; }

 public slots:
  void accept() override;

 private:
  void Reload();

  Workbench& workbench_;
  ActivePopulationsSession session_;
  TwoListPanel* lists_;
};

}  // namespace ovelt
