#pragma once
// The Data menu's dialogs of sets, coding regions, genetic code and sequence format on the
// desktop: their menu handlers, and a signal object that tells other windows (the data viewer)
// what changed in the data once a dialog was confirmed.

#include <QObject>

#include <string>

namespace ovelt {

class MainWindow;

// A child of the main window (find it with findChild<DataDialogEvents*>()).
class DataDialogEvents : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

 signals:
  // The sequence sets were rewritten (Define Sequence Sets, Include/Exclude Populations).
  void SetsChanged();
  // The coding map or the genetic code changed: `CodingFlag` was rebuilt, what a viewer shows
  // of codons is stale.
  void CodingChanged();
  // The nucleotide type (DNA/RNA) changed: a viewer should redraw its cells.
  void NucleotideTypeChanged();
};

// Adds the handlers of "&Format...", "&Assign Coding Regions...", "Assign Genetic &Code...",
// "&Define Sequence Sets..." and "Include / &Exclude Populations...".
void AddDataDialogHandlers(MainWindow& window);

// Opens one of these dialogs by its form name ("dlgDefPop", "dlgActivePop", "Form14", "Form15",
// "Form16"), as a refusal that offers to define what is missing does. True when the user
// confirmed it; false for another name.
bool ShowDataDialog(MainWindow& window, const std::string& form_name);

}  // namespace ovelt
