#include "ui/qt/data_viewer_handlers.h"

#include <memory>

#include "ui/qt/data_viewer_options.h"
#include "ui/qt/data_viewer_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/workspace.h"

namespace ovelt {

namespace {

constexpr const char* kViewerObjectName = "mulpop1";

struct ViewerState {
  ViewerDisplayOptions Options;  // both flags on until the user changes them
};

void ShowViewer(MainWindow& window, const ViewerState& state) {
  DataViewerWindow* viewer = OpenDataViewer(window);
  if (viewer == nullptr) {
    viewer = new DataViewerWindow(window.Bench().Data(), state.Options, &window);
    viewer->setObjectName(kViewerObjectName);
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    window.Work().Place(WorkspaceSlot::kViewer, viewer);
  } else {
    viewer->Reload(window.Bench().Data());
  }
  window.Work().Present(viewer);
}

void EditOptions(MainWindow& window, ViewerState& state) {
  DataViewerOptionsDialog dialog(state.Options, &window);
  if (dialog.exec() != QDialog::Accepted) return;
  state.Options = dialog.Options();
  if (DataViewerWindow* viewer = OpenDataViewer(window)) viewer->SetOptions(state.Options);
}

void FollowTheFile(MainWindow& window) {
  DataViewerWindow* viewer = OpenDataViewer(window);
  if (viewer == nullptr) return;
  if (!window.Bench().FileOpen()) {
    window.Work().Hide(viewer);
    viewer->close();
    return;
  }
  viewer->Reload(window.Bench().Data());
}

}  // namespace

DataViewerWindow* OpenDataViewer(MainWindow& window) {
  // In its dock of the workspace.
  return window.findChild<DataViewerWindow*>(kViewerObjectName);
}

void AddDataViewerHandlers(MainWindow& window) {
  auto state = std::make_shared<ViewerState>();
  window.AddHandler("verf1_Click", [&window, state] { ShowViewer(window, *state); });
  window.AddHandler("configuracion_Click", [&window, state] { EditOptions(window, *state); });
  QObject::connect(&window, &MainWindow::Refreshed, &window, [&window] { FollowTheFile(window); });
}

}  // namespace ovelt
