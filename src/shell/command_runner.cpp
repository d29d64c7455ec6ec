#include "shell/command_runner.h"

#include <new>
#include <optional>
#include <string>

#include "command/command_failure.h"
#include "files/whole_file.h"
#include "output/report_text.h"
#include "shell/workbench.h"

namespace ovelt {

namespace {

constexpr const char* kOutOfMemory =
    "        Out of memory !!!\nTry to reduce the number of programs running, or try to increase "
    "the RAM or virtual memory.";

// The end of a run that cannot stand. A refusal keeps the dialog open; a failed computation
// leaves nothing standing; a result too big to hold or show also closes the result windows.
void Stop(OutputChannel& channel, Platform& ui, const CommandFailure& failure) {
  switch (failure.Kind()) {
    case FailureKind::kRefused:
      channel.SetBusy(false);
      ui.MessageBox(failure.what(), MsgIcon::kWarning, MsgButtons::kOk, failure.Title());
      ui.ExplainRefusal(failure.Reason());
      channel.ReopenDialog = 1;
      break;
    case FailureKind::kFailed:
      ui.MessageBox(failure.what(), MsgIcon::kWarning);
      channel.RunFailed = 1;
      channel.SetBusy(false);
      break;
    case FailureKind::kTooBig:
      channel.TooBigCancel = 1;
      ui.MessageBox(failure.what(), MsgIcon::kWarning);
      channel.EndFailedRun();
      break;
  }
}

constexpr const char* kWritingOnFile = "Writing output on a file...";
constexpr const char* kWritingShort = "Writing...";

// A table of pairwise comparisons too long for the grid: on Yes and a file, its rows go there
// as the grid of a saved output would (or under the command's own file head); on No the result
// stands without it, or nothing stands when the command says so. Returns whether the result
// stands.
bool SaveLongTable(OutputChannel& channel, Platform& ui, const ResultLabels& labels,
                   const std::string& head, const CommandReport::LongTable& table) {
  const std::optional<std::string> path = channel.AskTooBigPairs(table.Rows);
  if (!path) return !table.DeclineEndsRun;
  const std::string previous_status = channel.StatusText();
  channel.SetStatus(table.FileHead ? kWritingShort : kWritingOnFile);
  WholeFileWriter writer(*path);
  bool written = writer.Open();
  if (written) {
    if (table.FileHead) {
      StreamTableFile(writer.Stream(), table.FileHead(ui.Now()), table.Rows, table.Row);
    } else {
      StreamGridAsText(writer.Stream(), labels, head, table.Rows, table.Row);
    }
    written = writer.Commit();
  }
  if (!written) {
    channel.TooBigSaved = 0;
    ui.MessageBox("Can't save the output on the file: " + *path, MsgIcon::kWarning);
  }
  channel.SetStatus(previous_status);
  return true;
}

// Hands the report to the channel; false when the run ends there with nothing standing.
bool Show(OutputChannel& channel, Platform& ui, const CommandFacts& facts, CommandReport report) {
  // A run that ends on a No to the long table's question shows nothing, so it asks first.
  if (report.LongGrid && report.LongGrid->DeclineEndsRun) {
    if (!SaveLongTable(channel, ui, facts.Labels, "", *report.LongGrid)) {
      channel.SetBusy(false);
      return false;
    }
    report.LongGrid.reset();
  }
  channel.ResultCode = facts.ResultCode();
  channel.Labels = facts.Labels;
  channel.HeaderBlock = report.Head;
  channel.AppendText(report.Head + report.Body);
  channel.Grid1 = std::move(report.Grid1);
  channel.Grid2 = std::move(report.Grid2);
  if (report.GeneFlow) channel.GeneFlow = std::move(*report.GeneFlow);
  if (report.GridTextHead) channel.SetGridTextHead(*report.GridTextHead);
  for (const CommandReport::Notice& notice : report.Notices)
    ui.MessageBox(notice.Text, notice.Icon);
  if (report.LongGrid)
    (void)SaveLongTable(channel, ui, facts.Labels,
                        report.GridTextHead ? *report.GridTextHead : facts.Labels.GridTextHead,
                        *report.LongGrid);
  if (report.Graph) channel.SetGraph(std::move(*report.Graph));
  for (const int kind : report.ShowKinds) channel.ShowResult(kind);
  channel.SetBusy(false);
  if (report.Status) channel.SetStatus(*report.Status);
  return true;
}

}  // namespace

RunOutcome RunCommand(Workbench& wb, const CommandEntry& entry, CommandOptions& options,
                      bool want_json) {
  return RunCommand(wb.FileOpen() ? &wb.Data() : nullptr, wb.Output(), wb.Ui(), entry, options,
                    want_json);
}

RunOutcome RunCommand(ActiveData* data, OutputChannel& channel, Platform& ui,
                      const CommandEntry& entry, CommandOptions& options, bool want_json) {
  channel.ReopenDialog = 0;
  RunOutcome outcome;
  if (!entry.Built()) return outcome;

  RunContext context;
  context.Data = data;
  context.MinimumSequences = entry.Facts.MinimumSequences;
  context.Begin = [&channel](const std::string& words) {
    channel.ResetOutputs();
    channel.SetBusy(true, words);
  };
  context.Progress.Status = [&channel](const std::string& words) { channel.SetStatus(words); };
  context.Progress.Gauge = [&channel](int percent) { channel.RaiseGauge(percent); };
  context.WantJson = want_json;

  CommandProduct product;
  try {
    product = entry.Binding->Run(context, options);
  } catch (const CommandFailure& failure) {
    Stop(channel, ui, failure);
    return outcome;
  } catch (const std::bad_alloc&) {
    Stop(channel, ui, CommandFailure(FailureKind::kFailed, kOutOfMemory));
    return outcome;
  }
  if (!Show(channel, ui, entry.Facts, std::move(product.Report))) return outcome;
  channel.Used = product.Used;
  // A calculator's run leaves the open file's region and result as they were.
  if (data != nullptr && entry.Binding->NeedsData()) {
    data->ResultCode = channel.ResultCode;
    data->Region = product.Region;
  }
  outcome.Stands = true;
  outcome.Json = std::move(product.Json);
  outcome.Result = std::move(product.Result);
  return outcome;
}

}  // namespace ovelt
