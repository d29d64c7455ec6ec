#pragma once
// The Display entries of the data viewer: "&View Data " opens it (`verf1_Click`) and "View
// Data &Options..." edits its two display flags (`configuracion_Click`, dialog `Form4`). The
// viewer follows the data file: it closes with the file and shows the included sequences
// again after they change.

namespace ovelt {

class MainWindow;
class DataViewerWindow;

void AddDataViewerHandlers(MainWindow& window);

// The open viewer of `window`, or nullptr.
[[nodiscard]] DataViewerWindow* OpenDataViewer(MainWindow& window);

}  // namespace ovelt
