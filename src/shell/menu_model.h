#pragma once
// The menus of the main window as data: every entry with its handler, text and enabled flag.
// The desktop builds its menu bar from this model; the command line reads the enabled flags
// to refuse what the desktop would grey out.

#include <cstdint>
#include <string>
#include <vector>

namespace ovelt {

struct MenuEntry {
  std::string menu;     // "File", "Data", "Analysis", "Overview", "Generate", "Display", "Tools", "Help"
  std::string handler;  // e.g. "leer_Click"; recent entries are "mnuFicheros_Click(n)"
  std::string text;
  int16_t command = 0;  // number of the command table, 0 for commands without a number
  bool enabled = false;
  bool visible = true;
};

class MenuModel {
 public:
  MenuModel();

  [[nodiscard]] const std::vector<MenuEntry>& Entries() const { return entries_; }
  [[nodiscard]] const MenuEntry* Find(const std::string& handler) const;
  MenuEntry* Find(const std::string& handler);
  [[nodiscard]] const MenuEntry* FindCommand(int number) const;
  [[nodiscard]] bool Enabled(const std::string& handler) const;

  // Mode 11: a file is open; mode 12: no file. `file_kind` decides "Update NEXUS Data File".
  void ActivarMenu(int mode, int16_t file_kind);
  void SetText(const std::string& handler, const std::string& text);
  void SetEnabled(const std::string& handler, bool enabled);
  void SetVisible(const std::string& handler, bool visible);

 private:
  std::vector<MenuEntry> entries_;
};

}  // namespace ovelt
