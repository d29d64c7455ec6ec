#include "ui/qt/set_dialogs_handlers.h"

#include "ui/qt/coding_region_dialog.h"
#include "ui/qt/format_dialog.h"
#include "ui/qt/genetic_code_dialog.h"
#include "ui/qt/main_window.h"
#include "ui/qt/set_dialogs.h"

namespace ovelt {

namespace {

DataDialogEvents* EventsOf(MainWindow& window) {
  auto* events = window.findChild<DataDialogEvents*>();
  if (events == nullptr) {
    events = new DataDialogEvents(&window);
    events->setObjectName("DataDialogEvents");
  }
  return events;
}

}  // namespace

bool ShowDataDialog(MainWindow& window, const std::string& form_name) {
  Workbench& wb = window.Bench();
  DataDialogEvents* events = EventsOf(window);
  bool confirmed = false;
  if (form_name == "dlgDefPop") {
    DefineSetsDialog dialog(wb, &window);
    confirmed = dialog.exec() == QDialog::Accepted;
    if (confirmed) emit events->SetsChanged();
  } else if (form_name == "dlgActivePop") {
    ActivePopulationsDialog dialog(wb, &window);
    confirmed = dialog.exec() == QDialog::Accepted;
    if (confirmed) emit events->SetsChanged();
  } else if (form_name == "Form14") {
    CodingRegionDialog dialog(wb, &window);
    confirmed = dialog.exec() == QDialog::Accepted;
    if (dialog.Changed()) emit events->CodingChanged();
  } else if (form_name == "Form15") {
    GeneticCodeDialog dialog(wb, &window);
    confirmed = dialog.exec() == QDialog::Accepted;
    if (dialog.Changed()) emit events->CodingChanged();
  } else if (form_name == "Form16") {
    FormatDialog dialog(wb, &window);
    confirmed = dialog.exec() == QDialog::Accepted;
    if (dialog.NucleotideTypeChanged()) emit events->NucleotideTypeChanged();
  } else {
    return false;
  }
  window.Refresh();
  return confirmed;
}

void AddDataDialogHandlers(MainWindow& window) {
  EventsOf(window);
  MainWindow* w = &window;
  const std::pair<const char*, const char*> entries[] = {
      {"MenuDefinePopulations_Click", "dlgDefPop"},
      {"MenuActivarPopulations_Click", "dlgActivePop"},
      {"MenuAsignarCodones_Click", "Form14"},
      {"MenuGeneticCode_Click", "Form15"},
      {"MenuFormat_Click", "Form16"},
  };
  for (const auto& [handler, form] : entries) {
    const std::string name = form;
    window.AddHandler(handler, [w, name] { ShowDataDialog(*w, name); });
  }
}

}  // namespace ovelt
