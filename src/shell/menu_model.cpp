#include "shell/menu_model.h"

#include "shell/command_registry.h"

namespace ovelt {

MenuModel::MenuModel() {
  auto add = [this](const char* menu, const char* handler, const char* text) {
    entries_.push_back({menu, handler, text, 0, false, true});
  };
  add("File", "leer_Click", "Open Data &File...");
  add("File", "del_Click", "&Close Data File");
  add("File", "export_Click", "Save / &Export Data As...");
  add("File", "MenuUpdateNEXUS_Click", "Update NEXUS Data File");
  add("File", "MenuSalvarData_Click", "Options for Saving (&NEXUS Format)...");
  add("File", "MenuSendAllOutput_Click", "Send &All Output to File...");
  add("File", "MenuCloseOutput_Click", "Close &Output File");
  add("File", "salvar_Click", "&Save Current Output...");
  add("File", "PageSetup_Click", "Pa&ge Setup...");
  add("File", "printout_Click", "&Print Output...");
  for (int n = 1; n <= 4; ++n)
    entries_.push_back(
        {"File", "mnuFicheros_Click(" + std::to_string(n) + ")", "", 0, false, false});
  add("File", "salir_Click", "E&xit");
  add("Data", "MenuFormat_Click", "&Format...");
  add("Data", "MenuGapsSW_Click", "Gaps in Sliding &Window...");
  add("Data", "MenuGapsSeqSets_Click", "&Gaps in Sequence Sets...");
  add("Data", "MenuSSMutations_Click", "&Segregating Sites / Mutations...");
  add("Data", "MenuAsignarCodones_Click", "&Assign Coding Regions...");
  add("Data", "MenuGeneticCode_Click", "Assign Genetic &Code...");
  add("Data", "MenuGCPreferentTable_Click", "Assign &Preferred / Unpreferred Codons Table...");
  add("Data", "MenuDefinePopulations_Click", "&Define Sequence Sets...");
  add("Data", "MenuActivarPopulations_Click", "Include / &Exclude Populations...");
  add("Data", "MenuIncluirSeqs_Click", "&Include / Exclude Sequences...");
  for (const CommandEntry& entry : Registry()) {
    const CommandFacts& f = entry.Facts;
    entries_.push_back({f.Menu, f.Handler, f.MenuText, f.Number(), false, true});
  }
  add("Display", "grafics_Click", "&Graphs...");
  add("Display", "DataInformacion_Click", "&Data Info");
  add("Display", "verf1_Click", "&View Data ");
  add("Display", "configuracion_Click", "View Data &Options...");
  add("Tools", "MenuCalculator_Click", "&Evolutionary Calculator...");
  add("Help", "contenido_Click", "&Contents");
  add("Help", "AyudaBuscar_Click", "Search for &Help on...");
  add("Help", "BugReports_Click", "Ovelt Bug Reports");
  add("Help", "Citation_Click", "C&itation");
  add("Help", "WebPage_Click", "&Ovelt Web Page");
  add("Help", "About_Click", "&About Ovelt");
  SetEnabled("MenuSendAllOutput_Click", true);
  ActivarMenu(12, 0);
}

const MenuEntry* MenuModel::Find(const std::string& handler) const {
  for (const auto& entry : entries_)
    if (entry.handler == handler) return &entry;
  return nullptr;
}

MenuEntry* MenuModel::Find(const std::string& handler) {
  for (auto& entry : entries_)
    if (entry.handler == handler) return &entry;
  return nullptr;
}

const MenuEntry* MenuModel::FindCommand(int number) const {
  for (const auto& entry : entries_)
    if (entry.command != 0 && entry.command == number) return &entry;
  return nullptr;
}

bool MenuModel::Enabled(const std::string& handler) const {
  const MenuEntry* entry = Find(handler);
  return entry != nullptr && entry->enabled;
}

void MenuModel::SetText(const std::string& handler, const std::string& text) {
  if (MenuEntry* entry = Find(handler)) entry->text = text;
}
void MenuModel::SetEnabled(const std::string& handler, bool enabled) {
  if (MenuEntry* entry = Find(handler)) entry->enabled = enabled;
}
void MenuModel::SetVisible(const std::string& handler, bool visible) {
  if (MenuEntry* entry = Find(handler)) entry->visible = visible;
}

void MenuModel::ActivarMenu(int mode, int16_t file_kind) {
  const bool open = (mode == 11);
  for (auto& entry : entries_) {
    const std::string& m = entry.menu;
    if (m == "Tools" || m == "Help" || entry.handler == "salir_Click") {
      entry.enabled = true;  // they need no data
    } else if (entry.handler == "leer_Click" || entry.handler.rfind("mnuFicheros_Click", 0) == 0 ||
               entry.handler == "MenuConcatenateDataFiles_Click") {
      entry.enabled = !open;  // one file at most is open
    } else if (entry.handler == "MenuUpdateNEXUS_Click") {
      entry.enabled = open && file_kind == 2;
    } else if (entry.handler == "MenuCloseOutput_Click" ||
               entry.handler == "MenuSendAllOutput_Click") {
      // follow the session file, which outlives data files
    } else if (entry.handler == "PageSetup_Click") {
      entry.enabled = true;
    } else {
      entry.enabled = open;
    }
  }
  if (open) SetText("salvar_Click", "&Save Current Output...");
}

}  // namespace ovelt
