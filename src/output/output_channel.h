#pragma once
// The one way in which an analysis shows results. A run asks for a clean start (ResetOutputs),
// appends report text and fills grids, sets `ResultCode` and its labels and tells the channel what
// kind of result now stands (ShowResult). The channel keeps what the windows show, and copies each
// result to the session file when one is open. The faces read the state below to draw their windows
// and menus; file names come in as arguments, the faces ask the user for them.
//
// The channel talks to the user only through Platform, which must outlive it. Destroying the
// channel with a session file open writes the session's end line, as ending the program does.

#include <cstdint>
#include <optional>
#include <string>

#include "output/graph_data.h"
#include "output/output_grid.h"
#include "output/result_labels.h"
#include "output/session_file.h"
#include "output/used_sequences.h"
#include "platform/platform.h"

namespace ovelt {

// Kinds of ShowResult.
inline constexpr int kResultGraphButtons = 11;
inline constexpr int kResultGraphButtonsToo = 12;
inline constexpr int kResultTextAndGrid = 51;
inline constexpr int kResultGridOnly = 52;
inline constexpr int kResultTextOnly = 53;
inline constexpr int kResultSecondGrid = 54;
inline constexpr int kResultTextAndSecondGrid = 55;
inline constexpr int kResultGridAndGraph = 56;
inline constexpr int kResultAddGraph = 57;
inline constexpr int kResultRemoveGraph = 58;

inline constexpr int16_t kTrelmoResultCode = 18;

inline constexpr const char* kIdleStatus = "For Help, press F1";
inline constexpr const char* kWritingStatus = "Writing...";
inline constexpr const char* kOutputFilter = "Output Files (*.out) |*.out |All Files (*.*) |*.*";
inline constexpr const char* kTrelmoFilter =
    "Trelmo Data Files (*.tmo) |*.tmo|Output Files (*.out) |*.out|All Files (*.*) |*.*";

// What a face needs to ask the user for a file name.
struct FileDialogRequest {
  std::string Title;
  std::string Filter;
  std::string DefaultName;
};

// Which windows are up.
struct OutputWindows {
  bool Text = false;   // Form5
  bool Grid = false;   // Form10
  bool Grid2 = false;  // Form10b
  bool Perm = false;   // Output_form
  bool Graph = false;  // Form8
};

// Captions and enabled flags of the menu entries the channel changes.
struct OutputCommands {
  std::string SaveCaption = "Save Current Output...";
  bool SaveEnabled = false;
  bool PrintEnabled = false;
  bool GraphButtonsEnabled = false;
  bool IdleCommandsEnabled = true;
  // At start-up the entries carry the access keys of the menu ("Send &All", "Close &Output"); once
  // a session file has been closed they read "&Send All" and "&Close Output File".
  std::string SendAllCaption = "Send &All Output to File...";
  bool SendAllEnabled = true;
  std::string CloseOutputCaption = "Close &Output File";
  bool CloseOutputEnabled = false;
};

class OutputChannel {
 public:
  explicit OutputChannel(Platform& platform);
  ~OutputChannel();
  OutputChannel(const OutputChannel&) = delete;
  OutputChannel& operator=(const OutputChannel&) = delete;

  // State, as the analyses and faces read and write it.
  std::string TextBuffer;
  std::string HeaderBlock;
  int16_t ResultCode = 0;
  int16_t TextShown = 0;
  int16_t GridShown = 0;
  int16_t Grid2Shown = 0;
  int16_t PermShown = 0;
  int16_t GraphOn = 0;
  int16_t RunFailed = 0;
  int16_t ReopenDialog = 0;
  int16_t SessionOpen = 0;
  int16_t SessionFileNo = 0;
  std::string SessionFileName;
  int16_t TooBigCancel = 0;
  int16_t TooBigSaved = 0;
  int16_t PrintFinalOnly = 0;
  int16_t GridRows = 20;

  OutputGrid Grid1;     // Form10
  OutputGrid Grid2;     // Form10b
  OutputGrid PermGrid;  // Output_form
  GeneFlowTable GeneFlow;
  std::string TrelmoLines;  // the data lines a Trelmo shuttle leaves, written as they stand
  // The titles, captions and grid head of the result that stands, as its command words them.
  ResultLabels Labels;
  // The sequences the result that stands was computed from.
  UsedSequences Used;

  // A clean start for a run: hides the result windows, empties the text, the head, the grids and
  // the graph, clears the shown flags and the failure flags of the previous run.
  void ResetOutputs();
  // On: the gauge at 0 and the status line in the caller's words. Off: the gauge hidden and the
  // idle status line.
  void SetBusy(bool on, const std::string& words = "");
  void SetStatus(const std::string& text);
  // Raises the gauge to `percent` (0..100); a lower value leaves it where it is.
  void RaiseGauge(int percent);
  void AppendText(const std::string& text);
  // Shows the windows of a result kind and, for kinds 51, 53 and 55, copies the result to the
  // open session file. Does nothing after a failed run, or for a kind it does not know.
  void ShowResult(int kind);
  // Hides the result windows of a run that failed and gives the idle commands back.
  void EndFailedRun();

  // The chart a run leaves for the graph window; sets GraphOn. ResetOutputs empties it.
  void SetGraph(GraphData graph);
  [[nodiscard]] const GraphData& Graph() const { return graph_; }
  // Changes with every SetGraph and ResetOutputs, so a window can tell a new chart from the one
  // it shows.
  [[nodiscard]] int32_t GraphSerial() const { return graph_serial_; }
  // Changes with every ResetOutputs: the windows of a new result can tell it from the last.
  [[nodiscard]] int32_t ResultSerial() const { return result_serial_; }

  // The grid head of the saved text: the run's own, or that of the result's labels.
  void SetGridTextHead(const std::string& head);
  [[nodiscard]] std::string GridTextHead() const;

  // The prompts for a grid too big for the screen. On Yes and a chosen file, returns the file the
  // analysis streams its rows to and sets TooBigSaved; on No, or no file, sets TooBigCancel.
  std::optional<std::string> AskTooBig(int64_t rows);
  std::optional<std::string> AskTooBigPairs(int64_t rows);
  // Before printing a grid of more than 200 rows; Yes sets PrintFinalOnly. Returns PrintFinalOnly.
  bool AskPrintFinalOnly(int64_t rows);

  [[nodiscard]] FileDialogRequest SaveOutputDialog() const;
  [[nodiscard]] static FileDialogRequest SendAllOutputDialog();

  // "Save Current Output": false (with its message) when refused or when the file failed.
  bool SaveCurrentOutput(const std::string& path);
  // "Send All Output to File": opens the session file; false (with its message) on failure.
  bool SendAllOutput(const std::string& path);
  // Writes the end line, closes the session file and puts it in place whole. False when the
  // session asked for last could not be written whole (now, or at an earlier result, with its
  // message shown then); true with no session at all.
  bool CloseSessionFile();

  // The bytes a saved output file gets now.
  [[nodiscard]] std::string SavedFileText();

  [[nodiscard]] const OutputWindows& Windows() const { return windows_; }
  [[nodiscard]] const OutputCommands& Commands() const { return commands_; }
  [[nodiscard]] bool GaugeVisible() const { return gauge_visible_; }
  [[nodiscard]] int GaugeValue() const { return gauge_; }
  [[nodiscard]] const std::string& StatusText() const { return status_; }

 private:
  std::optional<std::string> AskTooBigWith(const std::string& question);
  // Title block, the Trelmo lines, the grid as text, the second table and the gene-flow table.
  [[nodiscard]] std::string ResultText();
  void AppendResultToSession();
  void ResetSessionCommands();
  void ShowMessage(const std::string& text, MsgIcon icon);

  Platform& platform_;
  SessionFile session_;
  bool session_failed_ = false;
  OutputWindows windows_;
  OutputCommands commands_;
  std::optional<std::string> grid_text_head_;
  GraphData graph_;
  int32_t graph_serial_ = 0;
  int32_t result_serial_ = 0;
  bool gauge_visible_ = false;
  int gauge_ = 0;
  std::string status_ = kIdleStatus;
};

}  // namespace ovelt
