#pragma once
// The analyses of the command table on the desktop: each menu entry opens the option dialog
// made from its options' declaration, and OK runs the analysis through the output channel. A
// run that refuses its options (ReopenDialog) shows the dialog again.

#include <functional>
#include <string>

#include "shell/command_table.h"
#include "shell/workbench.h"
#include "ui/qt/option_dialog.h"

namespace ovelt {

class MainWindow;

// Adds the menu handlers of the analyses that are built.
void AddAnalysisHandlers(MainWindow& window);

// The dialog loop of one analysis; `run` gets the confirmed options.
template <class Options>
void RunAnalysisWithDialog(QWidget* parent, Workbench& wb, int16_t number,
                           const std::function<bool(Options&)>& run) {
  if (!wb.BeginCommand(number)) return;
  Options options;
  for (;;) {
    OptionDialog dialog(QString::fromStdString(CommandTitle(number)), parent);
    BuildOptionDialog(dialog, options, wb.Data());
    if (dialog.exec() != QDialog::Accepted) break;
    wb.Output().ReopenDialog = 0;
    if (run(options) || wb.Output().ReopenDialog == 0) break;
  }
  wb.EndCommand();
}

}  // namespace ovelt
