#pragma once
// The central area of the main window: the data viewer and the result windows (text, grids,
// graph) as dock widgets, tabbed together over the whole area at first. The user may tear one
// off (drag its tab or title bar, or double-click the title) into a floating window, put it
// back, or lay two side by side; the layout and the main window's geometry outlive the run of
// the program through QSettings. A new result is brought to the front and takes the focus.
// Each window keeps its own caption: the dock's title follows the window title of its content.

#include <QObject>
#include <QRect>

#include <array>

class QDockWidget;
class QMainWindow;
class QSettings;
class QWidget;

namespace ovelt {

enum class WorkspaceSlot { kViewer, kText, kGrid, kSecondGrid, kGraph };
inline constexpr int kWorkspaceSlots = 5;

class Workspace : public QObject {
  Q_OBJECT
 public:
  // Makes the docks (hidden) in `window`, whose central widget is shown while none is open.
  explicit Workspace(QMainWindow& window);

  // Puts `content` in the dock of `slot` (replacing what it held); hidden until shown.
  void Place(WorkspaceSlot slot, QWidget* content);
  // Opens the window of `content` without taking it to the front.
  void Show(QWidget* content);
  // Opens it, brings it to the front (its tab current, its floating window raised) and gives
  // it the focus.
  void Present(QWidget* content);
  void Hide(QWidget* content);
  // Open in the workspace, whether in front or behind another tab.
  [[nodiscard]] bool Shows(const QWidget* content) const;
  // The content the user last brought forward (or that a new result presented); nullptr if none
  // is open.
  [[nodiscard]] QWidget* Current() const;
  [[nodiscard]] QDockWidget* DockOf(const QWidget* content) const;

  // The main window's geometry and the docks' layout from `settings`; with none stored, the
  // window takes most of the screen it is on. Every dock is closed afterwards: nothing is open
  // at start-up, and each opens where the user left it.
  void Restore(QSettings& settings);
  void Save(QSettings& settings) const;

 signals:
  // `content` came to the front: a new result, a click on its tab, or the focus moved into it.
  void Activated(QWidget* content);

 private:
  QDockWidget* Dock(WorkspaceSlot slot) const { return docks_[static_cast<size_t>(slot)]; }
  void FollowCentral();
  void TakeFront(QDockWidget* dock);

  QMainWindow& window_;
  std::array<QDockWidget*, kWorkspaceSlots> docks_{};
  QDockWidget* current_ = nullptr;
};

// The main window's size on first start: most of the available area of its screen.
[[nodiscard]] QRect FirstStartGeometry(const QRect& available);

}  // namespace ovelt
