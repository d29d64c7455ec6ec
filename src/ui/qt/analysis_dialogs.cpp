#include "ui/qt/analysis_dialogs.h"

#include "shell/command_registry.h"
#include "shell/command_runner.h"
#include "ui/qt/help_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/option_dialog.h"

namespace ovelt {

void AddAnalysisHandlers(MainWindow& window) {
  Workbench& wb = window.Bench();
  QWidget* parent = &window;
  for (const CommandEntry& entry : Registry()) {
    if (!entry.Built()) continue;
    // The calculators (coalescent, independence) keep their fields and results in windows of
    // their own (tool_windows.cpp), which run them through the same runner.
    if (!entry.Binding->NeedsData()) continue;
    window.AddHandler(entry.Facts.Handler, [parent, &wb, &entry, &window] {
      const RunOutcome outcome = RunAnalysisWithDialog(parent, wb, entry);
      if (outcome.Stands) window.OfferExports(outcome);
    });
  }
}

RunOutcome RunAnalysisWithDialog(QWidget* parent, Workbench& wb, const CommandEntry& entry) {
  RunOutcome outcome;
  if (!wb.BeginCommand(entry.Facts.Number())) return outcome;
  const std::unique_ptr<CommandOptions> options = entry.Binding->NewOptions();
  for (;;) {
    OptionDialog dialog(QString::fromStdString(entry.Facts.Title), parent);
    BuildOptionDialog(dialog, *options, wb.Data());
    AttachHelpKey(&dialog, wb.Ui(), entry.Facts.CliName);
    if (dialog.exec() != QDialog::Accepted) break;
    outcome = RunCommand(wb, entry, *options);
    if (outcome.Stands || wb.Output().ReopenDialog == 0) break;
  }
  wb.EndCommand();
  return outcome;
}

}  // namespace ovelt
