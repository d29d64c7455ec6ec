#include "output/output_channel.h"

#include <algorithm>
#include <utility>

#include "output/report_text.h"
#include "output/same_file.h"
#include "output/too_big_prompt.h"

namespace ovelt {
namespace {

constexpr const char* kSessionNameRefused = "Ovelt is using this file to save all the output";
constexpr const char* kCantSave = "Can't save the output on the file: ";

bool WritesToSession(int kind) {
  return kind == kResultTextAndGrid || kind == kResultTextOnly || kind == kResultTextAndSecondGrid;
}

std::string SessionOpenFailure(const std::string& path) {
  return kCantSave + path +
         "\nFile already used ?\nIs it a Read-Only File ?\nOvelt will not send the output to any "
         "file.";
}

}  // namespace

OutputChannel::OutputChannel(Platform& platform) : platform_(platform) {}

OutputChannel::~OutputChannel() {
  try {
    CloseSessionFile();
  } catch (...) {
    // Nothing can be told to the user while the program ends; the file stays as last flushed.
  }
}

void OutputChannel::ResetOutputs() {
  windows_.Text = windows_.Grid = windows_.Grid2 = windows_.Perm = windows_.Graph = false;
  TextBuffer.clear();
  HeaderBlock.clear();
  TextShown = GridShown = Grid2Shown = PermShown = GraphOn = 0;
  RunFailed = ReopenDialog = 0;
  TooBigCancel = TooBigSaved = PrintFinalOnly = 0;
  Grid1.Clear();
  Grid2.Clear();
  PermGrid.Clear();
  GeneFlow.Clear();
  TrelmoLines.clear();
  Labels = ResultLabels{};
  Used = UsedSequences{};
  grid_text_head_.reset();
  graph_ = GraphData{};
  ++graph_serial_;
  ++result_serial_;
  commands_.SaveCaption = "Save Current Output...";
  commands_.SaveEnabled = commands_.PrintEnabled = commands_.GraphButtonsEnabled = false;
}

void OutputChannel::SetBusy(bool on, const std::string& words) {
  gauge_visible_ = on;
  commands_.IdleCommandsEnabled = !on;
  if (on) {
    // A new run: the gauge starts again from the bottom.
    gauge_ = 0;
    platform_.SetProgress(0);
    SetStatus(words);
  } else {
    SetStatus(kIdleStatus);
  }
}

void OutputChannel::SetStatus(const std::string& text) {
  status_ = text;
  platform_.SetStatusText(text);
}

void OutputChannel::RaiseGauge(int percent) {
  const int value = std::clamp(percent, 0, 100);
  if (value <= gauge_) return;
  gauge_ = value;
  platform_.SetProgress(value);
}

void OutputChannel::SetGraph(GraphData graph) {
  graph_ = std::move(graph);
  ++graph_serial_;
  GraphOn = 1;
  // A chart to show turns the graph buttons on, as ShowResult 11 and 12 do.
  commands_.GraphButtonsEnabled = true;
}

void OutputChannel::AppendText(const std::string& text) {
  TextBuffer += text;
}

void OutputChannel::ShowResult(int kind) {
  if (RunFailed != 0) return;
  switch (kind) {
    case kResultGraphButtons:
    case kResultGraphButtonsToo:
      commands_.GraphButtonsEnabled = true;
      break;
    case kResultTextAndGrid:
      TextShown = GridShown = 1;
      windows_.Text = windows_.Grid = true;
      break;
    case kResultGridOnly:
      GridShown = 1;
      windows_.Grid = true;
      break;
    case kResultTextOnly:
      TextShown = 1;
      windows_.Text = true;
      break;
    case kResultSecondGrid:
      Grid2Shown = 1;
      windows_.Grid2 = true;
      break;
    case kResultTextAndSecondGrid:
      TextShown = Grid2Shown = 1;
      windows_.Text = windows_.Grid2 = true;
      break;
    case kResultGridAndGraph:
      GridShown = GraphOn = 1;
      windows_.Grid = windows_.Graph = true;
      break;
    case kResultAddGraph:
      GraphOn = 1;
      windows_.Graph = true;
      break;
    case kResultRemoveGraph:
      GraphOn = 0;
      windows_.Graph = false;
      break;
    default:
      return;
  }
  const bool something_stands = TextShown != 0 || GridShown != 0 || Grid2Shown != 0;
  commands_.SaveEnabled = commands_.PrintEnabled = something_stands;
  commands_.IdleCommandsEnabled = true;
  if (WritesToSession(kind) && SessionOpen != 0) AppendResultToSession();
}

void OutputChannel::EndFailedRun() {
  windows_.Text = windows_.Grid = windows_.Grid2 = windows_.Perm = windows_.Graph = false;
  GridShown = 0;
  RunFailed = 1;
  SetBusy(false);
}

void OutputChannel::SetGridTextHead(const std::string& head) {
  grid_text_head_ = head;
}

std::string OutputChannel::GridTextHead() const {
  return grid_text_head_ ? *grid_text_head_ : Labels.GridTextHead;
}

std::optional<std::string> OutputChannel::AskTooBig(int64_t rows) {
  return AskTooBigWith(TooBigQuestion(rows, SessionOpen != 0 ? SessionFileName : ""));
}

std::optional<std::string> OutputChannel::AskTooBigPairs(int64_t rows) {
  return AskTooBigWith(TooBigPairsQuestion(rows, SessionOpen != 0 ? SessionFileName : ""));
}

std::optional<std::string> OutputChannel::AskTooBigWith(const std::string& question) {
  TooBigCancel = TooBigSaved = 0;
  const MsgAnswer answer =
      platform_.MessageBox(question, MsgIcon::kQuestion, MsgButtons::kYesNo, "Ovelt", true);
  if (answer != MsgAnswer::kYes) {
    TooBigCancel = 1;
    return std::nullopt;
  }
  const auto path = platform_.SaveFileName("Save File As", kOutputFilter, "*.out");
  if (!path) {
    TooBigCancel = 1;
    return std::nullopt;
  }
  if (SessionOpen != 0 && SameFile(*path, SessionFileName)) {
    ShowMessage(kSessionNameRefused, MsgIcon::kWarning);
    TooBigCancel = 1;
    return std::nullopt;
  }
  TooBigSaved = 1;
  return path;
}

bool OutputChannel::AskPrintFinalOnly(int64_t rows) {
  PrintFinalOnly = 0;
  if (rows <= kPrintPromptRows) return false;
  const MsgAnswer answer =
      platform_.MessageBox(PrintFinalOnlyQuestion(rows), MsgIcon::kQuestion, MsgButtons::kYesNo);
  PrintFinalOnly = answer == MsgAnswer::kYes ? 1 : 0;
  return PrintFinalOnly != 0;
}

FileDialogRequest OutputChannel::SaveOutputDialog() const {
  if (ResultCode == kTrelmoResultCode) return {"Save Output on File", kTrelmoFilter, "*.tmo"};
  return {"Save Output on File", kOutputFilter, "*.out"};
}

FileDialogRequest OutputChannel::SendAllOutputDialog() {
  return {"Save All Output on File", kOutputFilter, "*.out"};
}

std::string OutputChannel::ResultText() {
  // The report itself when the text window holds it; otherwise the head kept for this purpose.
  std::string text = TitleBlock(Labels.Title, TextShown != 0 ? TextBuffer : HeaderBlock);
  if (ResultCode == kTrelmoResultCode) text += TrelmoLines;
  if (GridShown != 0 && ResultCode != kTrelmoResultCode) {
    const std::string previous_status = status_;
    SetStatus(kWritingStatus);
    text += GridAsText(Labels, GridTextHead(), Grid1);
    SetStatus(previous_status);
  }
  if (Grid2Shown != 0) text += SecondTableAsText(Labels, Grid2);
  return text + GeneFlowAsText(GeneFlow);
}

std::string OutputChannel::SavedFileText() {
  // A Trelmo shuttle saves a data file for that program: its own lines and nothing else.
  if (ResultCode == kTrelmoResultCode) return TrelmoLines;
  return CommonOpening(platform_.Now()) + ResultText();
}

bool OutputChannel::SaveCurrentOutput(const std::string& path) {
  if (SessionOpen != 0 && SameFile(path, SessionFileName)) {
    ShowMessage(kSessionNameRefused, MsgIcon::kWarning);
    return false;
  }
  if (!WriteWholeFile(path, SavedFileText())) {
    ShowMessage(kCantSave + path, MsgIcon::kCritical);
    return false;
  }
  return true;
}

bool OutputChannel::SendAllOutput(const std::string& path) {
  if (SessionOpen != 0) CloseSessionFile();
  session_failed_ = false;
  if (!session_.Open(path)) {
    session_failed_ = true;
    ShowMessage(SessionOpenFailure(path), MsgIcon::kCritical);
    return false;
  }
  ShowMessage("All Output (except graphs) will be saved on file: " + path, MsgIcon::kInformation);
  if (!session_.Append(CommonOpening(platform_.Now()))) {
    session_.Abandon();
    session_failed_ = true;
    ShowMessage(SessionOpenFailure(path), MsgIcon::kCritical);
    return false;
  }
  SessionOpen = 1;
  SessionFileNo = 1;
  SessionFileName = path;
  commands_.SendAllCaption = "Send All Output to File: " + path;
  commands_.SendAllEnabled = false;
  commands_.CloseOutputCaption = "&Close Output File: " + path;
  commands_.CloseOutputEnabled = true;
  return true;
}

bool OutputChannel::CloseSessionFile() {
  if (SessionOpen == 0) return !session_failed_;
  // The file takes its place under the chosen name only now, whole.
  const bool written = session_.Append(SessionEndLine(platform_.Now())) && session_.Close();
  const std::string name = SessionFileName;
  ResetSessionCommands();
  if (!written) {
    session_failed_ = true;
    ShowMessage(kCantSave + name, MsgIcon::kCritical);
  }
  return !session_failed_;
}

void OutputChannel::AppendResultToSession() {
  if (session_.Append(ResultText() + SessionSeparator())) return;
  // The session cannot go on: say so once and stop sending results to it. Its file is not put
  // in place cut short; a file of that name stays as it was.
  const std::string name = SessionFileName;
  ResetSessionCommands();
  session_failed_ = true;
  ShowMessage(kCantSave + name, MsgIcon::kCritical);
}

void OutputChannel::ResetSessionCommands() {
  session_.Abandon();
  SessionOpen = 0;
  SessionFileNo = 0;
  SessionFileName.clear();
  commands_.SendAllCaption = "&Send All Output to File...";
  commands_.SendAllEnabled = true;
  commands_.CloseOutputCaption = "&Close Output File";
  commands_.CloseOutputEnabled = false;
}

void OutputChannel::ShowMessage(const std::string& text, MsgIcon icon) {
  platform_.MessageBox(text, icon, MsgButtons::kOk);
}

}  // namespace ovelt
