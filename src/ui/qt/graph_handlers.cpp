#include "ui/qt/graph_handlers.h"

#include "ui/qt/graph_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/print_output.h"
#include "ui/qt/workspace.h"

namespace ovelt {

namespace {

constexpr const char* kControllerName = "GraphController";

// Keeps the graph window and the File menu's state, as a child of the main window.
class GraphController : public QObject {
 public:
  explicit GraphController(MainWindow& window) : QObject(&window), window_(window) {
    setObjectName(kControllerName);
    connect(&window, &MainWindow::Refreshed, this, [this] { Follow(); });
    // The graph has the focus while it is the window of the workspace the user works in.
    connect(&window.Work(), &Workspace::Activated, this,
            [this](QWidget* content) { SetFocus(graph_ != nullptr && content == graph_); });
  }

  GraphWindow* Window() const { return graph_; }
  bool Focus() const { return focus_; }

  void Show() {
    Workbench& wb = window_.Bench();
    if (graph_ == nullptr) {
      graph_ = new GraphWindow(wb, &window_);
      window_.Work().Place(WorkspaceSlot::kGraph, graph_);
    }
    const OutputChannel& channel = wb.Output();
    graph_->ShowGraph(channel.GraphOn != 0 ? channel.Graph() : GraphData{});
    shown_serial_ = channel.GraphSerial();
    window_.Work().Present(graph_);
  }

  bool Shown() const { return graph_ != nullptr && window_.Work().Shows(graph_); }

  void Save() {
    if (focus_ && Shown()) {
      graph_->SaveGraph();
      return;
    }
    OutputChannel& channel = window_.Bench().Output();
    const FileDialogRequest request = channel.SaveOutputDialog();
    if (auto path =
            window_.Bench().Ui().SaveFileName(request.Title, request.Filter, request.DefaultName))
      channel.SaveCurrentOutput(*path);
  }

  void Print() {
    if (focus_ && Shown()) {
      graph_->PrintGraph(ProgramPrinter(window_));
      return;
    }
    PrintOutput(window_);
  }

  void SetFocus(bool on) {
    if (on == focus_) return;
    focus_ = on;
    MenuModel& menus = window_.Bench().Menus();
    menus.SetText("salvar_Click", on ? kSaveGraphCaption : "&Save Current Output...");
    menus.SetText("printout_Click", on ? kPrintGraphCaption : "&Print Output...");
    window_.Refresh();
  }

 private:
  // After every command: a closed file or a new run takes the chart away; a new chart replaces
  // the one an open window shows.
  void Follow() {
    if (graph_ == nullptr) return;
    Workbench& wb = window_.Bench();
    const OutputChannel& channel = wb.Output();
    if (!wb.FileOpen() || channel.GraphOn == 0) {
      window_.Work().Hide(graph_);
      graph_->Clear();
      SetFocus(false);
      return;
    }
    if (Shown() && channel.GraphSerial() != shown_serial_) {
      shown_serial_ = channel.GraphSerial();
      graph_->ShowGraph(channel.Graph());
    }
  }

  MainWindow& window_;
  GraphWindow* graph_ = nullptr;
  bool focus_ = false;
  int32_t shown_serial_ = -1;
};

GraphController* Controller(MainWindow& window) {
  return window.findChild<GraphController*>(kControllerName, Qt::FindDirectChildrenOnly);
}

}  // namespace

void AddGraphHandlers(MainWindow& window) {
  auto* controller = new GraphController(window);
  window.AddHandler("grafics_Click", [controller] { controller->Show(); });
  window.AddHandler("salvar_Click", [controller] { controller->Save(); });
  window.AddHandler("printout_Click", [controller] { controller->Print(); });
}

GraphWindow* FindGraphWindow(MainWindow& window) {
  GraphController* c = Controller(window);
  return c == nullptr ? nullptr : c->Window();
}

bool GraphHasFocus(MainWindow& window) {
  GraphController* c = Controller(window);
  return c != nullptr && c->Focus();
}

void SetGraphFocus(MainWindow& window, bool on) {
  if (GraphController* c = Controller(window)) c->SetFocus(on);
}

}  // namespace ovelt
