#pragma once
// The analyses of the registry on the desktop: each menu entry opens the option dialog made
// from its options' declaration, and OK runs the analysis through the runner. A run that
// refuses its options (ReopenDialog) shows the dialog again.

#include <QWidget>

#include "command/command_entry.h"
#include "shell/command_runner.h"
#include "shell/workbench.h"

namespace ovelt {

class MainWindow;

// Adds the menu handler of every built analysis of the registry.
void AddAnalysisHandlers(MainWindow& window);

// The dialog loop of one analysis. The outcome of the last run of the dialog (none standing when cancelled or refused).
RunOutcome RunAnalysisWithDialog(QWidget* parent, Workbench& wb, const CommandEntry& entry);

}  // namespace ovelt
