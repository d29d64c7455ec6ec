#pragma once
// The shell: one open data file at a time, its opening and closing, the included sequences,
// the recent files, the gating of commands and the checks made before a command's dialog.
// It computes nothing itself. A second Workbench in the same process is independent.

#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "shell/menu_model.h"
#include "shell/recent_files.h"
#include "formats/nexus_document.h"
#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

struct LoadedFile;

inline constexpr const char* kOpenDialogTitle = "Open Data File";
// A file's kind is read from its first line; "All Data Files" also takes the extensions other
// programs of the field give the same formats.
inline constexpr const char* kOpenDialogFilter =
    "All Data Files|*.fas;*.meg;*.nbr;*.nex;*.phy;*.pir;*.fasta;*.fa;*.fna;*.nexus;*.nxs;"
    "*.phylip;*.mega|FASTA Files (*.fas)|*.fas|MEGA Files "
    "(*.meg)|*.meg|NBRF/PIR files (*.nbr;*.pir)|*.nbr;*.pir|NEXUS files (*.nex)|*.nex|PHYLIP "
    "files (*.phy)|*.phy|All files (*.*)|*.*";
inline constexpr const char* kVersionText = "Ver. 4.00.5";
inline constexpr const char* kVersionDate = "May 10, 2004";

class Workbench {
 public:
  explicit Workbench(Platform& platform);
  ~Workbench();
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;

  [[nodiscard]] ActiveData& Data() { return data_; }
  [[nodiscard]] const ActiveData& Data() const { return data_; }
  [[nodiscard]] OutputChannel& Output() { return output_; }
  [[nodiscard]] MenuModel& Menus() { return menus_; }
  [[nodiscard]] const MenuModel& Menus() const { return menus_; }
  [[nodiscard]] RecentFiles& Recent() { return recent_; }
  [[nodiscard]] Platform& Ui() { return platform_; }
  [[nodiscard]] bool FileOpen() const { return data_.OpenFiles > 0; }
  // The blocks of the open NEXUS file as they stood, for "Update NEXUS Data File".
  [[nodiscard]] const std::optional<NexusDocument>& NexusBlocks() const { return nexus_document_; }
  // The path the open file was read from, exactly as it was given (made absolute, nothing
  // trimmed or resolved): "Update NEXUS Data File" writes there and nowhere else.
  [[nodiscard]] const std::string& ReadPath() const { return read_path_; }

  // fbLeerTodo: index 0 asks the platform's open dialog, index k takes recent entry k.
  [[nodiscard]] std::optional<std::string> fbLeerTodo(int index);
  // fbLeer1: choose (as fbLeerTodo) and load. True when a file was opened.
  bool fbLeer1(int index);
  // Opens the given path (the choice already made); the recent list is updated on success.
  bool OpenPath(const std::string& path);
  // del_Click: asks "Close file ? " unless `ask` is false; true when the file was closed.
  bool CloseFile(bool ask = true);
  // salida_programa: true when the program may end.
  bool salida_programa();

  // Include/Exclude Sequences confirmed with these ticks (1..TotalSeqs). False (with the
  // message shown) when refused; nothing changes then.
  bool IncludeSequences(const std::vector<bool>& ticks, int16_t gaps_in_sets);

  // Starts a command of the table: checks that its menu entry is enabled, sets `Analysis` and
  // runs the refusals before the dialog. False, with `Analysis` back at 0, when refused.
  bool BeginCommand(int number);
  // Ends the running command: `Analysis` back at 0 and the status refreshed.
  void EndCommand();

  // Window title: "Ovelt Workbench - " and the file's name, or "Ovelt Workbench".
  [[nodiscard]] std::string WindowTitle() const;
  // Sets the status line: flag 1 "busy" with the text, other values restore the idle text.
  void SetStatus(int flag, const std::string& text = "");

 private:
  // Reads and installs a file; no recent-list update.
  bool Load(const std::string& path);
  void CommitLoadedFile(LoadedFile&& file, const std::string& path);
  void ResetLayers();
  void RefreshTitle();
  void RefreshRecentMenu();
  bool RunCheck(int check, const struct CommandRow& row);
  [[nodiscard]] std::string FileLines() const;

  Platform& platform_;
  ActiveData data_;
  OutputChannel output_;
  MenuModel menus_;
  RecentFiles recent_;
  std::optional<NexusDocument> nexus_document_;
  std::string read_path_;
};

}  // namespace ovelt
