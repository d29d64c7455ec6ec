#pragma once
// The help window: the pages of the manual (Markdown, shell/manual.h) rendered in a text
// browser whose links lead from page to page, with the contents (every page, the index first),
// a search field that lists the pages holding the words typed, and Back and Forward.

#include <QWidget>

#include <filesystem>
#include <string>
#include <vector>

class QLineEdit;
class QListWidget;
class QPushButton;
class QTextBrowser;

namespace ovelt {

class Platform;

class HelpWindow : public QWidget {
  Q_OBJECT
 public:
  // `parent` keeps the window alive; it is a window of its own all the same.
  explicit HelpWindow(std::filesystem::path manual_root, QWidget* parent = nullptr);

  // Shows a page by its name under the manual ("index", "commands/tajima").
  void ShowPage(const std::string& name);
  // Puts the cursor in the search field, its text selected.
  void FocusSearch();
  // Fills the list of results with the pages that hold every word of `words`.
  void Search(const QString& words);

  // The page shown, by its name ("" when the browser shows something else).
  [[nodiscard]] std::string CurrentPage() const;
  [[nodiscard]] QTextBrowser* Browser() const { return browser_; }
  [[nodiscard]] QListWidget* Contents() const { return contents_; }
  [[nodiscard]] QLineEdit* SearchField() const { return search_; }
  [[nodiscard]] QListWidget* Results() const { return results_; }
  [[nodiscard]] QPushButton* BackButton() const { return back_; }
  [[nodiscard]] QPushButton* ForwardButton() const { return forward_; }

 private:
  void FillContents();
  void PageShown();

  std::filesystem::path root_;
  QTextBrowser* browser_;
  QListWidget* contents_;
  QLineEdit* search_;
  QListWidget* results_;
  QPushButton* back_;
  QPushButton* forward_;
};

// The folders in which the desktop looks for the manual: the program's directory as the window
// layer tells it, and the folder of the executable.
[[nodiscard]] std::vector<std::string> DesktopProgramDirectories(const std::string& program_dir);

// F1 in `dialog` opens the page of `key` (a command-line name, number or page name) in a help
// window of the dialog, which takes input while the dialog is modal. Without a manual, F1 shows
// the message that the help is missing through `ui`.
void AttachHelpKey(QWidget* dialog, Platform& ui, const std::string& key);

}  // namespace ovelt
