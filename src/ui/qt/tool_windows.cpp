#include "ui/qt/tool_windows.h"

#include <string>

#include "core/command_id.h"
#include "ui/qt/calculator_window.h"
#include "ui/qt/distributions_window.h"
#include "ui/qt/help_window.h"
#include "ui/qt/independence_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/tool_windows_coalescent.h"

namespace ovelt {
namespace {

// A calculator with a number in the command table: the command runs while its window is open.
template <class Window, class... Extra>
void RunToolCommand(MainWindow& window, CommandId id, Extra... extra) {
  Workbench& wb = window.Bench();
  if (!wb.BeginCommand(Number(id))) return;
  Window tool(wb, extra..., &window);
  AttachHelpKey(&tool, wb.Ui(), std::to_string(Number(id)));
  tool.exec();
  wb.EndCommand();
}

}  // namespace

void AddToolHandlers(MainWindow& window) {
  MainWindow* main = &window;
  window.AddHandler("MenuIndependence_Click", [main] {
    RunToolCommand<IndependenceWindow>(*main, CommandId::kIndependence);
  });
  window.AddHandler("MenuDDistributions_Click", [main] {
    RunToolCommand<DistributionsWindow>(*main, CommandId::kDistributions);
  });
  window.AddHandler("MenuGeneCoal_Click", [main] {
    RunToolCommand<CoalescentWindow>(*main, CommandId::kCoalescent,
                                     SeedSuggestion(SuggestSeedFromClock));
  });
  window.AddHandler("MenuCalculator_Click", [main] {
    CalculatorWindow calculator(main->Bench().Ui(), LocaleDecimalSeparator(), main);
    AttachHelpKey(&calculator, main->Bench().Ui(), "calc");
    calculator.exec();
  });
}

}  // namespace ovelt
