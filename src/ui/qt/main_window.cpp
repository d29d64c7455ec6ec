#include "ui/qt/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QDateTime>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "analyses/divergence/gene_flow/gene_flow_compute.h"
#include "core/gap_settings.h"
#include "shell/matrix_export.h"
#include "ui/qt/analysis_dialogs.h"
#include "ui/qt/data_info_window.h"
#include "ui/qt/data_viewer_handlers.h"
#include "ui/qt/export_dialog.h"
#include "ui/qt/form17_dialog.h"
#include "ui/qt/graph_handlers.h"
#include "ui/qt/grid_window.h"
#include "ui/qt/help_menu.h"
#include "ui/qt/include_dialog.h"
#include "ui/qt/print_output.h"
#include "ui/qt/qt_platform.h"
#include "ui/qt/select_statistic_dialog.h"
#include "ui/qt/set_dialogs_handlers.h"
#include "ui/qt/text_window.h"
#include "ui/qt/tool_bar.h"
#include "ui/qt/tool_windows.h"
#include "ui/qt/workspace.h"

namespace ovelt {

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

const char* const kMenuOrder[] = {"File",     "Data",    "Analysis", "Overview",
                                  "Generate", "Display", "Tools",    "Help"};
const char* const kMenuTitles[] = {"&File",     "&Data",    "&Analysis", "&Overview",
                                   "&Generate", "Dis&play", "&Tools",    "&Help"};

}  // namespace

MainWindow::MainWindow(Platform& platform, QtPlatform* qt_platform, QWidget* parent)
    : QMainWindow(parent), workbench_(platform), qt_platform_(qt_platform) {
  status_ = new QLabel;
  gauge_ = new QProgressBar;
  gauge_->setRange(0, 100);
  gauge_->setMaximumWidth(200);
  gauge_->hide();
  clock_ = new QLabel;
  results_ = new QLabel;
  statusBar()->addWidget(status_, 1);
  statusBar()->addWidget(gauge_);
  // The title of the results on show, next to the clock.
  statusBar()->addPermanentWidget(results_);
  statusBar()->addPermanentWidget(clock_);
  if (qt_platform_ != nullptr) {
    qt_platform_->Attach(this, status_, gauge_);
    qt_platform_->SetDialogs([this](const std::string& form) { return OpenNamedDialog(form); });
  }
  status_->setText(kIdleStatus);

  // The date and time in the status bar, refreshed by a timer: "dd/mm/yy hh:mm".
  timer_ = new QTimer(this);
  auto tick = [this] { clock_->setText(QDateTime::currentDateTime().toString("dd/MM/yy hh:mm")); };
  connect(timer_, &QTimer::timeout, this, tick);
  timer_->start(30000);
  tick();

  // Before the handlers: the graph and the data viewer open in it.
  workspace_ = new Workspace(*this);
  RegisterHandlers();
  AddAnalysisHandlers(*this);
  AddDataViewerHandlers(*this);
  AddPrintHandlers(*this);
  AddHelpHandlers(*this);
  AddExportHandlers(*this);
  AddDataDialogHandlers(*this);
  AddToolHandlers(*this);
  AddGraphHandlers(*this);  // after the print handlers: it wraps printout_Click
  BuildMenus();
  BuildToolBar();
  // The frame in the middle of the window shows the program and its version while no window
  // of the workspace is docked there.
  auto* version =
      new QLabel(QString("Ovelt Workbench\n") + kVersionText + "  (" + kVersionDate + ")");
  version->setObjectName("versionFrame");
  version->setAlignment(Qt::AlignCenter);
  version->setFrameShape(QFrame::StyledPanel);
  setCentralWidget(version);
  text_ = new TextWindow(this);
  grid_ = new GridWindow(this);
  grid2_ = new GridWindow(this);
  workspace_->Place(WorkspaceSlot::kText, text_);
  workspace_->Place(WorkspaceSlot::kGrid, grid_);
  workspace_->Place(WorkspaceSlot::kSecondGrid, grid2_);
  setWindowTitle(Q(workbench_.WindowTitle()));
  resize(900, 600);  // RememberLayout sizes it to the screen
  Refresh();
}

MainWindow::~MainWindow() {
  if (qt_platform_ != nullptr) qt_platform_->SetDialogs(nullptr);
}

void MainWindow::RegisterHandlers() {
  Workbench& wb = workbench_;
  handlers_["leer_Click"] = [&wb] { wb.fbLeer1(0); };
  for (int n = 1; n <= 4; ++n)
    handlers_["mnuFicheros_Click(" + std::to_string(n) + ")"] = [&wb, n] { wb.fbLeer1(n); };
  handlers_["del_Click"] = [&wb] { wb.CloseFile(); };
  handlers_["salir_Click"] = [this] { close(); };
  handlers_["DataInformacion_Click"] = [this] { ShowDataInformation(); };
  handlers_["salvar_Click"] = [this] { SaveCurrentOutput(); };
  handlers_["MenuSendAllOutput_Click"] = [this] { SendAllOutput(); };
  handlers_["MenuCloseOutput_Click"] = [&wb] { wb.Output().CloseSessionFile(); };
  handlers_["MenuGapsSW_Click"] = [this] { RunForm17(kGapsInWindowCommand); };
  handlers_["MenuSSMutations_Click"] = [this] { RunForm17(kSegSitesMutationsCommand); };
  handlers_["MenuGapsSeqSets_Click"] = [this] { RunForm17(kGapsInSetsCommand); };
  handlers_["MenuIncluirSeqs_Click"] = [this] { RunIncludeSequences(); };
  handlers_["About_Click"] = [this] {
    QMessageBox::about(this, "About Ovelt",
                       QString("Ovelt Workbench %1\n%2\nPopulation-genetic analysis of aligned DNA "
                               "sequences.")
                           .arg(kVersionText, kVersionDate));
  };
}

void MainWindow::BuildMenus() {
  std::map<std::string, QMenu*> menus;
  for (size_t i = 0; i < std::size(kMenuOrder); ++i)
    menus[kMenuOrder[i]] = menuBar()->addMenu(kMenuTitles[i]);
  for (const MenuEntry& entry : workbench_.Menus().Entries()) {
    auto menu = menus.find(entry.menu);
    if (menu == menus.end()) continue;
    QAction* action = menu->second->addAction(Q(entry.text));
    const std::string handler = entry.handler;
    connect(action, &QAction::triggered, this, [this, handler] { Trigger(handler); });
    actions_[handler] = action;
  }
  // Menus that hold nothing yet stay out of the bar.
  for (auto& [name, menu] : menus) {
    bool any = false;
    for (const MenuEntry& entry : workbench_.Menus().Entries())
      if (entry.menu == name && handlers_.count(entry.handler)) any = true;
    menu->menuAction()->setVisible(any);
  }
}

void MainWindow::BuildToolBar() {
  BuildMainToolBar(*this);
}

QAction* MainWindow::ActionFor(const std::string& handler) const {
  auto it = actions_.find(handler);
  return it == actions_.end() ? nullptr : it->second;
}

TextWindow* MainWindow::Text() const {
  return text_;
}
GridWindow* MainWindow::Grid() const {
  return grid_;
}

bool MainWindow::Shows(const QWidget* content) const {
  return workspace_->Shows(content);
}

void MainWindow::RememberLayout(QSettings& settings) {
  layout_settings_ = &settings;
  workspace_->Restore(settings);
}

QString MainWindow::StatusText() const {
  return status_->text();
}

QString MainWindow::ResultsPanelText() const {
  return results_->text();
}

bool MainWindow::OpenNamedDialog(const std::string& form_name) {
  // The table of preferred codons has its editor; the Data menu's dialogs are told by name.
  if (form_name == "PrefUnprefTable") {
    auto editor = handlers_.find("MenuGCPreferentTable_Click");
    if (editor == handlers_.end()) return false;
    editor->second();
    Refresh();
    return true;
  }
  return ShowDataDialog(*this, form_name);
}

void MainWindow::Trigger(const std::string& handler) {
  auto it = handlers_.find(handler);
  if (it == handlers_.end() || !workbench_.Menus().Enabled(handler)) return;
  it->second();
  Refresh();
}

void MainWindow::OfferExports(const RunOutcome& outcome) {
  const auto* flow = std::any_cast<std::shared_ptr<const GeneFlowResult>>(&outcome.Result);
  if (flow == nullptr || *flow == nullptr) {
    grid_->SetExport({}, {});
    return;
  }
  std::shared_ptr<const GeneFlowResult> result = *flow;
  grid_->SetExport("Export Distance Matrix...", [this, result] {
    SelectStatisticDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted) return;
    ExportDistanceMatrix(workbench_.Ui(), *result, dialog.Statistic(), dialog.Format());
  });
}

void MainWindow::Refresh() {
  MenuModel& menus = workbench_.Menus();
  const OutputCommands& out = workbench_.Output().Commands();
  // The session-file entries follow the channel.
  menus.SetText("MenuSendAllOutput_Click", out.SendAllCaption);
  menus.SetEnabled("MenuSendAllOutput_Click", out.SendAllEnabled);
  menus.SetText("MenuCloseOutput_Click", out.CloseOutputCaption);
  menus.SetEnabled("MenuCloseOutput_Click", out.CloseOutputEnabled);
  if (workbench_.FileOpen()) menus.SetEnabled("salvar_Click", out.SaveEnabled);
  if (workbench_.FileOpen()) menus.SetEnabled("printout_Click", out.PrintEnabled);
  // The graph buttons stand only while a result has left a chart.
  if (workbench_.FileOpen()) menus.SetEnabled("grafics_Click", out.GraphButtonsEnabled);
  for (const MenuEntry& entry : menus.Entries()) {
    QAction* action = ActionFor(entry.handler);
    if (action == nullptr) continue;
    action->setText(Q(entry.text));
    action->setEnabled(entry.enabled);
    // Entries of commands that are not built yet are not shown.
    action->setVisible(entry.visible && handlers_.count(entry.handler) > 0);
  }
  setWindowTitle(Q(workbench_.WindowTitle()));
  ShowResults();
  emit Refreshed();
}

void MainWindow::ShowResults() {
  const OutputChannel& channel = workbench_.Output();
  const OutputWindows& windows = channel.Windows();
  const ResultLabels& labels = channel.Labels;
  const std::string& title = labels.Title;
  const bool any_results = windows.Text || windows.Grid || windows.Grid2 || windows.Graph;
  results_->setText(any_results ? Q(title) : QString());
  if (windows.Text) {
    text_->SetReport(Q(labels.TextCaption + " - " + workbench_.Data().FileName),
                     channel.TextBuffer);
    workspace_->Show(text_);
  } else {
    workspace_->Hide(text_);
  }
  if (windows.Grid) {
    const std::string caption = !labels.GridCaption.empty() ? labels.GridCaption
                                : channel.ResultCode != 0   ? std::string("Output. Grid")
                                                            : "Output. Table of: " + title;
    grid_->SetGrid(Q(caption), channel.Grid1, channel.GridRows);
    // Only a gene-flow table offers its export (OfferExports, after the run).
    if (channel.ResultCode != static_cast<int>(CommandId::kGeneFlow)) grid_->SetExport({}, {});
    workspace_->Show(grid_);
  } else {
    workspace_->Hide(grid_);
  }
  if (windows.Grid2) {
    grid2_->SetGrid(Q(labels.SecondGridCaption), channel.Grid2, channel.GridRows);
    workspace_->Show(grid2_);
  } else {
    workspace_->Hide(grid2_);
  }
  // A new result comes to the front: its report, or its first table when it has no report.
  const bool shown = windows.Text || windows.Grid || windows.Grid2;
  if (shown && channel.ResultSerial() != presented_serial_) {
    presented_serial_ = channel.ResultSerial();
    workspace_->Present(windows.Text ? static_cast<QWidget*>(text_)
                        : windows.Grid ? grid_
                                       : grid2_);
  }
}

void MainWindow::ShowDataInformation() {
  const std::vector<InfoRow> rows = DataInformationRows(workbench_.Data());
  DataInfoWindow window(
      rows,
      [this, rows] {
        OutputChannel& channel = workbench_.Output();
        channel.ResetOutputs();
        // Not the output of an analysis: no earlier run's caption or save path may stick to it.
        channel.ResultCode = 0;
        channel.AppendText(DataInformationText(rows));
        channel.Labels.Title = kDataInformationTitle;
        channel.ShowResult(kResultTextOnly);
        Refresh();
      },
      this);
  window.exec();
}

void MainWindow::SaveCurrentOutput() {
  OutputChannel& channel = workbench_.Output();
  const FileDialogRequest request = channel.SaveOutputDialog();
  if (auto path = workbench_.Ui().SaveFileName(request.Title, request.Filter, request.DefaultName))
    channel.SaveCurrentOutput(*path);
}

void MainWindow::SendAllOutput() {
  const FileDialogRequest request = OutputChannel::SendAllOutputDialog();
  if (auto path = workbench_.Ui().SaveFileName(request.Title, request.Filter, request.DefaultName))
    workbench_.Output().SendAllOutput(*path);
}

void MainWindow::RunForm17(int16_t analysis) {
  ActiveData& d = workbench_.Data();
  Form17Dialog dialog(Form17FaceFor(analysis), Form17CurrentChoice(d, analysis), this);
  // Only OK writes the setting; any other way out changes nothing.
  if (dialog.exec() == QDialog::Accepted) {
    workbench_.SetStatus(1, "Processing...");
    ApplyForm17(d, analysis, dialog.Choice());
    workbench_.SetStatus(0);
  }
}

void MainWindow::RunIncludeSequences() {
  IncludeDialog dialog(workbench_, this);
  dialog.exec();
}

QMenu* MainWindow::createPopupMenu() {
  auto* menu = new QMenu(this);
  for (QToolBar* bar : findChildren<QToolBar*>()) menu->addAction(bar->toggleViewAction());
  return menu;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (workbench_.salida_programa()) {
    if (layout_settings_ != nullptr) workspace_->Save(*layout_settings_);
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace ovelt
