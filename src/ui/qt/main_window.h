#pragma once
// The main window: menus built from the menu model, tool buttons, the status line with its
// progress bar and clock, and the workspace that holds the data viewer and the result windows.
// Every menu entry runs the handler of the same name on the Workbench; after each one the menus
// are brought in line with the model.

#include <QMainWindow>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "shell/workbench.h"

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QSettings;
class QTimer;

namespace ovelt {

class QtPlatform;
struct RunOutcome;
class TextWindow;
class GridWindow;
class Workspace;

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  // `platform` is the window layer the logic talks to (a QtPlatform in the program, a scripted
  // one in tests). When it is a QtPlatform it is attached to this window's status line.
  explicit MainWindow(Platform& platform, QtPlatform* qt_platform = nullptr,
                      QWidget* parent = nullptr);
  ~MainWindow() override;

  [[nodiscard]] Workbench& Bench() { return workbench_; }
  [[nodiscard]] QAction* ActionFor(const std::string& handler) const;
  // Runs a menu handler as a click would (also used by the tool buttons and tests).
  void Trigger(const std::string& handler);
  [[nodiscard]] TextWindow* Text() const;
  [[nodiscard]] GridWindow* Grid() const;
  // The second grid window, for the tables of the polymorphism and divergence group.
  [[nodiscard]] GridWindow* SecondGrid() const { return grid2_; }
  // The tabs and floating windows of the data viewer and of the results.
  [[nodiscard]] Workspace& Work() const { return *workspace_; }
  // Whether the window of `content` is open in the workspace (in front or behind a tab).
  [[nodiscard]] bool Shows(const QWidget* content) const;
  [[nodiscard]] QString StatusText() const;
  // The status panel with the title of the current results (empty when none are shown).
  [[nodiscard]] QString ResultsPanelText() const;

  // Adds or replaces the handler of a menu entry (before the menus are built).
  void AddHandler(const std::string& handler, std::function<void()> run) {
    handlers_[handler] = std::move(run);
  }

  // Whether a menu handler is registered (its command is built).
  [[nodiscard]] bool HasHandler(const std::string& handler) const {
    return handlers_.count(handler) > 0;
  }

  // Opens one of the program's dialogs by its form name ("dlgDefPop", "Form14",
  // "PrefUnprefTable", ...), as the Yes of a refusal that offers to define what is missing
  // does. True when the user confirmed it; false for a name without a dialog here.
  bool OpenNamedDialog(const std::string& form_name);

  // Brings menus, captions, title and result windows in line with the model.
  void Refresh();

  // After a run that stands: the files its result can be written to, offered in its windows
  // (a gene-flow statistic as a distance matrix); a result without any takes the offer away.
  void OfferExports(const RunOutcome& outcome);

  // Restores the window's geometry and the workspace's layout from `settings` (or sizes the
  // window to its screen), and saves both there when the window closes. `settings` must
  // outlive the window.
  void RememberLayout(QSettings& settings);

 signals:
  // After each Refresh: windows that follow the data (tool bar, data viewer) update themselves.
  void Refreshed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  // The context menu of the bars: the tool bar alone. A window of the workspace opens with its
  // data or result, never empty from a menu.
  QMenu* createPopupMenu() override;

 private:
  void BuildMenus();
  void BuildToolBar();
  void RegisterHandlers();
  void ShowResults();
  void ShowDataInformation();
  void SaveCurrentOutput();
  void SendAllOutput();
  void RunForm17(int16_t analysis);
  void RunIncludeSequences();

  Workbench workbench_;
  QtPlatform* qt_platform_;
  std::map<std::string, QAction*> actions_;
  std::map<std::string, std::function<void()>> handlers_;
  QLabel* status_ = nullptr;
  QLabel* clock_ = nullptr;
  QLabel* results_ = nullptr;
  QProgressBar* gauge_ = nullptr;
  QTimer* timer_ = nullptr;
  TextWindow* text_ = nullptr;  // children of this window
  GridWindow* grid_ = nullptr;
  GridWindow* grid2_ = nullptr;
  Workspace* workspace_ = nullptr;
  QSettings* layout_settings_ = nullptr;
  // The result last brought to the front (OutputChannel::ResultSerial).
  int32_t presented_serial_ = -1;
};

}  // namespace ovelt
