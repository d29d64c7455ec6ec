#include "shell/workbench.h"

#include <filesystem>
#include <new>
#include <system_error>
#include <utility>

#include "core/coding_regions.h"
#include "core/genetic_code_choice.h"
#include "core/sequence_sets.h"
#include "core/site_scan.h"
#include "formats/nexus_extras.h"
#include "formats/read_file.h"
#include "formats/read_messages.h"
#include "shell/command_registry.h"
#include "shell/path_display.h"
#include "shell/refusals.h"

namespace ovelt {

namespace {

constexpr const char* kOutOfMemoryAtLoad =
    "        Out of memory !!!\nTry to reduce the number of programs running, or try to "
    "increase the RAM or virtual memory. Ovelt will end.";

// Standard input, a pipe or a process substitution can be read once only: such a source has no
// place in the list of recent files.
bool CanOpenAgain(const std::string& path) {
  std::error_code ec;
  return path != kStandardInputPath && std::filesystem::is_regular_file(path, ec);
}

// The path the recent-files list keeps: whole, so that an entry opens the same file from any
// working directory (a command line names files relative to where it runs).
std::string ListedPath(const std::string& path) {
  std::error_code ec;
  const std::filesystem::path whole = std::filesystem::absolute(path, ec);
  return ec ? path : whole.lexically_normal().string();
}

}  // namespace

Workbench::Workbench(Platform& platform)
    : platform_(platform), output_(platform), recent_(platform) {
  data_.Region.RegionTo = 0;
  data_.PrefTableName = DefaultPrefTableName(data_.Format.GeneticCodeIndex);
  recent_.fConsultaCFA();
  RefreshRecentMenu();
  RefreshTitle();
  SetStatus(0);
}

Workbench::~Workbench() = default;

std::string Workbench::WindowTitle() const {
  return FileOpen() ? "Ovelt Workbench - " + data_.FileName : "Ovelt Workbench";
}

void Workbench::RefreshTitle() {
  platform_.SetWindowTitle(WindowTitle());
}

void Workbench::SetStatus(int flag, const std::string& text) {
  if (flag == 1) {
    platform_.SetStatusText(text);
    platform_.SetProgress(1);
  } else {
    platform_.SetStatusText(kIdleStatus);
    platform_.SetProgress(-1);
  }
}

void Workbench::RefreshRecentMenu() {
  for (int n = 1; n <= 4; ++n) {
    const std::string handler = "mnuFicheros_Click(" + std::to_string(n) + ")";
    const bool present = !recent_.Entry(n).empty();
    menus_.SetVisible(handler, present);
    menus_.SetText(handler, present ? recent_.MenuText(n) : "");
  }
}

std::string Workbench::FileLines() const {
  return InputFileLine(data_);
}

std::optional<std::string> Workbench::fbLeerTodo(int index) {
  if (index == 0) return platform_.OpenFileName(kOpenDialogTitle, kOpenDialogFilter);
  const std::string path = recent_.Entry(index);
  if (path.empty()) return std::nullopt;
  std::error_code ec;
  const auto status = std::filesystem::status(path, ec);
  if (status.type() == std::filesystem::file_type::not_found) {
    platform_.MessageBox("File not found: \n\n" + path, MsgIcon::kWarning);
    return std::nullopt;  // the menu entry stays
  }
  if (ec) {
    platform_.MessageBox("Disk not ready. Data file: " + path, MsgIcon::kWarning);
    return std::nullopt;
  }
  return path;
}

bool Workbench::fbLeer1(int index) {
  if (FileOpen()) return false;
  const std::optional<std::string> path = fbLeerTodo(index);
  if (!path) return false;
  if (!Load(*path)) return false;
  if (TitleCode(data_.Analysis) != TitleCode(CommandId::kConcatenate) && CanOpenAgain(*path)) {
    recent_.fActualizaCFA(index == 0 ? ListedPath(*path) : *path, index);
    RefreshRecentMenu();
  }
  return true;
}

bool Workbench::OpenPath(const std::string& path) {
  if (!Load(path)) return false;
  if (TitleCode(data_.Analysis) != TitleCode(CommandId::kConcatenate) && CanOpenAgain(path)) {
    recent_.fActualizaCFA(ListedPath(path), 0);
    RefreshRecentMenu();
  }
  return true;
}

bool Workbench::Load(const std::string& path) {
  if (FileOpen()) return false;  // the open command is disabled while a file is open
  if (TitleCode(data_.Analysis) != TitleCode(CommandId::kConcatenate)) data_.Analysis = 0;
  output_.ResetOutputs();
  SetStatus(1, "Reading File: " + ftCortarNombre(path, 29) + "...");

  LoadedFile file;
  try {
    file = ReadDataFile(path, platform_, [this](int percent) { platform_.SetProgress(percent); });
  } catch (const ReadCancelled&) {
    SetStatus(0);
    return false;
  } catch (const ReadError& error) {
    SetStatus(0);
    platform_.MessageBox(error.what(), MsgIcon::kWarning);
    return false;
  }
  std::vector<std::string> warnings;
  if (file.Nexus) warnings = file.Nexus->Warnings;
  if (file.NumSeqs() == 0) {
    SetStatus(0);
    platform_.MessageBox(BadFormatText(path), MsgIcon::kWarning);
    return false;
  }

  SetStatus(1, "Processing Data...");
  try {
    CommitLoadedFile(std::move(file), path);
  } catch (const std::bad_alloc&) {
    SetStatus(0);
    platform_.MessageBox(kOutOfMemoryAtLoad, MsgIcon::kCritical);
    throw;  // the program ends
  }
  SetStatus(0);
  RefreshTitle();
  // Warnings of a NEXUS read come after the file is open: they do not stop the read.
  for (const std::string& warning : warnings) platform_.MessageBox(warning, MsgIcon::kWarning);
  return true;
}

// The order of the steps after a new file has been read; each needs the one before. The new
// state is built apart and swapped in at the end, so that a failure leaves the old one whole.
void Workbench::CommitLoadedFile(LoadedFile&& file, const std::string& path) {
  ActiveData next = data_;  // no file is open: this copies only settings
  next.SequenceSets.assign(1, PoblacionSecuencias{});
  std::error_code ec;
  const std::filesystem::path full = std::filesystem::absolute(path, ec);
  const bool from_stdin = path == kStandardInputPath;
  next.FilePath = ec || from_stdin ? path : full.lexically_normal().string();
  next.FileName = from_stdin ? path : LastPathComponent(path);
  next.FileKind = file.FileKind;
  next.NumSites = file.NumSites;
  next.NumSeqs = file.NumSeqs();
  next.RawMatrix = std::move(file.Matrix);
  next.IncNames = std::move(file.Names);
  next.IncMatrix = next.RawMatrix;  // shares the cells until an exclusion

  // 1. Classify the sites over all sequences, and (step 6 below, taken here in the same pass
  //    over the cells) their diversities: nothing between the two changes the sequences in use.
  ClassifyAndMeasureAllSites(next);
  // 2. The file layer's own copies.
  next.TotalSeqs = static_cast<int16_t>(next.NumSeqs);
  next.RawSiteClass = next.SiteClass;
  // 3. Every sequence included.
  next.SeqIncluded.assign(static_cast<size_t>(next.TotalSeqs) + 1, true);
  next.SeqIncluded[0] = false;
  next.RawNames = next.IncNames;
  next.GapsInSets = 1;
  // 4. Format attributes back to their defaults, except for what the reader itself set
  //    (layout, block length and, for MEGA, the symbols of its dialog). A NEXUS file sets
  //    them all while it is read.
  if (next.FileKind != kNexus) {
    FormatAttributes fresh;
    fresh.Interleaved = file.Interleaved;
    fresh.BlockLength = file.BlockLength;
    if (file.HasMegaSymbols) {
      fresh.MatchSymbol = file.MatchSymbol;
      fresh.GapSymbol = file.GapSymbol;
      fresh.MissingSymbol = file.MissingSymbol;
    }
    next.Format = fresh;
    ResetCodingState(next);
    next.PrefTableName = DefaultPrefTableName(next.Format.GeneticCodeIndex);
  }
  // 5. Count the open file.
  next.OpenFiles = static_cast<int16_t>(next.OpenFiles + 1);
  if (next.FileKind == kNexus && file.Nexus) ApplyNexusExtras(*file.Nexus, next);
  // 6. Per-site diversity over the included sequences: taken with step 1.
  // 7. Coding tables.
  RebuildCodingTables(next);
  next.Region.RegionFrom = 1;
  next.Region.RegionTo = next.NumSites;

  data_ = std::move(next);
  nexus_document_.reset();
  if (file.Nexus) nexus_document_ = std::move(file.Nexus->Document);
  std::error_code absolute_error;
  const std::filesystem::path read_from = std::filesystem::absolute(path, absolute_error);
  read_path_ = absolute_error || path == kStandardInputPath ? path : read_from.string();
  menus_.ActivarMenu(11, data_.FileKind);
  if (data_.FileKind == kNexus)
    menus_.SetText("MenuUpdateNEXUS_Click", "Update NEXUS Data File:  " + data_.FileName);
}

void Workbench::ResetLayers() {
  // Settings kept across files stay; everything of the file goes.
  ActiveData fresh;
  fresh.GapsInSets = data_.GapsInSets;
  fresh.GapsInWindow = data_.GapsInWindow;
  fresh.UseMutations = data_.UseMutations;
  fresh.Format = data_.Format;
  fresh.OpenFiles = static_cast<int16_t>(data_.OpenFiles - 1);
  fresh.Region.RegionTo = 0;
  fresh.PrefTableName = "None";  // the table is returned to none
  data_ = std::move(fresh);
}

bool Workbench::CloseFile(bool ask) {
  if (!FileOpen()) return false;
  if (ask && platform_.MessageBox("Close file ? \n" + FileLines(), MsgIcon::kQuestion,
                                  MsgButtons::kYesNo, "Ovelt", true) != MsgAnswer::kYes)
    return false;
  output_.ResetOutputs();
  ResetLayers();
  nexus_document_.reset();
  read_path_.clear();
  menus_.ActivarMenu(12, 0);
  menus_.SetText("MenuUpdateNEXUS_Click", "Update NEXUS Data File");
  RefreshTitle();
  SetStatus(0);
  return true;
}

bool Workbench::salida_programa() {
  if (FileOpen() && platform_.MessageBox("       Exit Ovelt ? ", MsgIcon::kQuestion,
                                         MsgButtons::kYesNo) != MsgAnswer::kYes)
    return false;
  output_.CloseSessionFile();
  return true;
}

bool Workbench::IncludeSequences(const std::vector<bool>& ticks, int16_t gaps_in_sets) {
  if (!FileOpen()) return false;
  SetStatus(1, "Processing...");
  const std::optional<std::string> refusal = ::ovelt::IncludeSequences(data_, ticks, gaps_in_sets);
  SetStatus(0);
  if (refusal) {
    platform_.MessageBox(*refusal, MsgIcon::kWarning);
    return false;
  }
  return true;
}

bool Workbench::BeginCommand(int number) {
  const CommandEntry* command = FindEntry(number);
  const CommandFacts* row = command != nullptr ? &command->Facts : nullptr;
  const MenuEntry* entry = menus_.FindCommand(row ? row->Number() : number);
  if (row == nullptr || entry == nullptr || !entry->enabled) return false;
  data_.Analysis = row->Number();
  for (Check check : row->Checks) {
    if (!PassesCheck(check, *row, data_, platform_)) {
      data_.Analysis = 0;
      return false;
    }
  }
  return true;
}

void Workbench::EndCommand() {
  data_.Analysis = 0;
  SetStatus(0);
}

}  // namespace ovelt
