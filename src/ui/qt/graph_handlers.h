#pragma once
// The graph on the desktop: "&Graphs..." (and the tool button "Show Graph") opens `Form8` on the
// chart the last run left; while Form8 has the focus the File menu's "Print Output..." and
// "Save Current Output..." read "Print Graph..." and "Save Graph..." and act on the chart, until
// another window of the workspace takes the focus (its tab, or a click in it). The window hides
// when the data file is closed or a new run begins.

namespace ovelt {

class MainWindow;
class GraphWindow;

inline constexpr const char* kPrintGraphCaption = "Print Graph...";
inline constexpr const char* kSaveGraphCaption = "Save Graph...";

// Registers grafics_Click and wraps salvar_Click and printout_Click; call after the print
// handlers are registered.
void AddGraphHandlers(MainWindow& window);

// The graph window of `window`, once "&Graphs..." has made it; nullptr before.
[[nodiscard]] GraphWindow* FindGraphWindow(MainWindow& window);
// Whether the File menu acts on the chart now.
[[nodiscard]] bool GraphHasFocus(MainWindow& window);
// As the workspace does when a window takes the focus (true for Form8, false for another).
void SetGraphFocus(MainWindow& window, bool on);

}  // namespace ovelt
