#include "ui/qt/workspace.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QTabWidget>

namespace ovelt {

namespace {

// The names the layout is saved under; a new slot appends its name, so that an older layout
// still restores.
constexpr const char* kSlotNames[kWorkspaceSlots] = {"workspaceViewer", "workspaceText",
                                                     "workspaceGrid", "workspaceSecondGrid",
                                                     "workspaceGraph"};
constexpr int kLayoutVersion = 1;
constexpr const char* kGeometryKey = "workspace/geometry";
constexpr const char* kStateKey = "workspace/state";

// Mirrors the window title of a dock's content on the dock (its tab and floating caption).
class TitleFollower : public QObject {
 public:
  explicit TitleFollower(QDockWidget* dock) : QObject(dock), dock_(dock) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::WindowTitleChange && watched == dock_->widget())
      dock_->setWindowTitle(dock_->widget()->windowTitle());
    return false;
  }

 private:
  QDockWidget* dock_;
};

bool Inside(const QWidget* widget, const QWidget* container) {
  return widget != nullptr && container != nullptr &&
         (widget == container || container->isAncestorOf(widget));
}

}  // namespace

QRect FirstStartGeometry(const QRect& available) {
  // Nine tenths of the screen each way, centred: room for the data and a report side by side,
  // with the desktop still showing around it.
  const int width = available.width() * 9 / 10;
  const int height = available.height() * 9 / 10;
  return {available.x() + (available.width() - width) / 2,
          available.y() + (available.height() - height) / 2, width, height};
}

Workspace::Workspace(QMainWindow& window) : QObject(&window), window_(window) {
  setObjectName("workspace");
  window_.setDockOptions(QMainWindow::AnimatedDocks | QMainWindow::AllowNestedDocks |
                         QMainWindow::AllowTabbedDocks);
  window_.setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
  for (int i = 0; i < kWorkspaceSlots; ++i) {
    auto* dock = new QDockWidget(&window_);
    dock->setObjectName(kSlotNames[i]);
    dock->setAllowedAreas(Qt::AllDockWidgetAreas);
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable |
                      QDockWidget::DockWidgetFloatable);
    // One tab group over the whole area until the user lays them out otherwise.
    if (i == 0) {
      window_.addDockWidget(Qt::TopDockWidgetArea, dock);
    } else {
      window_.tabifyDockWidget(docks_[0], dock);
    }
    dock->hide();
    docks_[static_cast<size_t>(i)] = dock;
    connect(dock, &QDockWidget::visibilityChanged, this, [this] { FollowCentral(); });
    connect(dock, &QDockWidget::topLevelChanged, this, [this] { FollowCentral(); });
  }
  connect(&window_, &QMainWindow::tabifiedDockWidgetActivated, this,
          [this](QDockWidget* dock) { TakeFront(dock); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    for (QDockWidget* dock : docks_)
      if (Inside(now, dock->widget()) && dock != current_) {
        current_ = dock;
        emit Activated(dock->widget());
      }
  });
}

void Workspace::Place(WorkspaceSlot slot, QWidget* content) {
  QDockWidget* dock = Dock(slot);
  if (dock->widget() == content) return;
  dock->setWidget(content);
  dock->setWindowTitle(content->windowTitle());
  content->installEventFilter(new TitleFollower(dock));
}

QDockWidget* Workspace::DockOf(const QWidget* content) const {
  if (content == nullptr) return nullptr;
  for (QDockWidget* dock : docks_)
    if (dock->widget() == content) return dock;
  return nullptr;
}

void Workspace::Show(QWidget* content) {
  if (QDockWidget* dock = DockOf(content)) {
    content->show();
    dock->show();
    FollowCentral();
  }
}

void Workspace::Present(QWidget* content) {
  QDockWidget* dock = DockOf(content);
  if (dock == nullptr) return;
  Show(content);
  dock->raise();
  // Its window (the main one, or its own when torn off) comes up over the others.
  QWidget* top = dock->window();
  top->raise();
  top->activateWindow();
  TakeFront(dock);
}

void Workspace::TakeFront(QDockWidget* dock) {
  current_ = dock;
  if (QWidget* content = dock->widget()) {
    content->setFocus(Qt::OtherFocusReason);
    emit Activated(content);
  }
}

void Workspace::Hide(QWidget* content) {
  if (QDockWidget* dock = DockOf(content)) dock->hide();
  FollowCentral();
}

bool Workspace::Shows(const QWidget* content) const {
  const QDockWidget* dock = DockOf(content);
  return dock != nullptr && !dock->isHidden();
}

QWidget* Workspace::Current() const {
  return current_ != nullptr && !current_->isHidden() ? current_->widget() : nullptr;
}

void Workspace::FollowCentral() {
  // The central frame (the program and its version) stands while no window is docked.
  bool docked = false;
  for (QDockWidget* dock : docks_) docked = docked || (!dock->isHidden() && !dock->isFloating());
  if (QWidget* central = window_.centralWidget()) central->setVisible(!docked);
}

void Workspace::Restore(QSettings& settings) {
  const QByteArray geometry = settings.value(kGeometryKey).toByteArray();
  if (geometry.isEmpty() || !window_.restoreGeometry(geometry)) {
    const QScreen* screen = window_.screen() != nullptr ? window_.screen()
                                                        : QGuiApplication::primaryScreen();
    if (screen != nullptr) window_.setGeometry(FirstStartGeometry(screen->availableGeometry()));
  }
  window_.restoreState(settings.value(kStateKey).toByteArray(), kLayoutVersion);
  for (QDockWidget* dock : docks_) dock->hide();
  current_ = nullptr;
  FollowCentral();
}

void Workspace::Save(QSettings& settings) const {
  settings.setValue(kGeometryKey, window_.saveGeometry());
  settings.setValue(kStateKey, window_.saveState(kLayoutVersion));
}

}  // namespace ovelt
