#pragma once
// The twelve tool buttons of the main window. Each runs the handler of its menu entry, and only
// while that entry is enabled; a button whose command is not built (no handler registered) is
// not shown.

#include <QString>

#include <array>

namespace ovelt {

class MainWindow;
class MenuModel;

struct ToolButtonEntry {
  const char* Label;
  const char* Handler;
};

inline constexpr std::array<ToolButtonEntry, 12> kToolButtons = {{
    {"Data Information", "DataInformacion_Click"},
    {"Open Data File", "leer_Click"},
    {"Show Graph", "grafics_Click"},
    {"Print Output", "printout_Click"},
    {"Save Current Output", "salvar_Click"},
    {"Display Data", "verf1_Click"},
    {"Close Data File", "del_Click"},
    {"Include/Exclude Sequences", "MenuIncluirSeqs_Click"},
    {"Calculator", "MenuCalculator_Click"},
    {"Coalescent Simulations", "MenuGeneCoal_Click"},
    {"Define Sequence Sets", "MenuDefinePopulations_Click"},
    {"", "contenido_Click"},  // the help button carries no label
}};

// The tip of a button: its label and the menu command it runs, "Display Data (Display > View
// Data)"; the help button, which has no label, shows the command alone.
[[nodiscard]] QString ToolButtonTip(const ToolButtonEntry& button, const MenuModel& menus);

// Adds the tool bar to `window`; its buttons follow each Refresh of the window.
void BuildMainToolBar(MainWindow& window);

}  // namespace ovelt
