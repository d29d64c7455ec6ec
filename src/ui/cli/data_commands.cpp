#include "ui/cli/data_commands.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <ostream>

#include "shell/command_registry.h"
#include "shell/data_information.h"
#include "shell/workbench.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/definition_flags.h"
#include "ui/cli/file_job.h"
#include "ui/cli/site_view.h"

namespace ovelt {

namespace {

int RunInfo(const FileJob& job, const CliStreams& s) {
  ConsolePlatform platform(s.err);
  Workbench wb(platform);
  if (!OpenJob(job, wb, platform, s.err)) return kCliRefused;
  const std::vector<InfoRow> rows = DataInformationRows(wb.Data());
  OutputChannel& channel = wb.Output();
  channel.ResetOutputs();
  const std::string annotations = DataAnnotationsText(wb.Data());
  channel.AppendText(DataInformationText(rows) + (annotations.empty() ? "" : "\r\n" + annotations));
  channel.Grid1.ColumnTitles = {"", kDataInformationTitle};
  channel.Grid1.Data.Keys = {"item", "value"};
  for (const auto& [label, value] : rows) {
    channel.Grid1.Rows.push_back({label, value});
    const size_t indent = label.find_first_not_of(' ');
    channel.Grid1.Data.Rows.push_back(
        {indent == std::string::npos ? std::string() : label.substr(indent), value});
  }
  channel.Labels.Title = kDataInformationTitle;
  channel.ShowResult(kResultTextOnly);
  return FinishOutput(job.output, wb, kDataInformationTitle, s.out) ? kCliDone : kCliRefused;
}

int RunSites(const FileJob& job, const SiteViewOptions& view, const CliStreams& s) {
  ConsolePlatform platform(s.err);
  Workbench wb(platform);
  if (!OpenJob(job, wb, platform, s.err)) return kCliRefused;
  if (!RunSiteView(wb, view)) return kCliRefused;
  return FinishOutput(job.output, wb, "Site Classes", s.out) ? kCliDone : kCliRefused;
}

int RunCheck(const std::string& command, const FileJob& job, const CliStreams& s) {
  const CommandEntry* found = FindEntry(command);
  if (found == nullptr) {
    s.err << "Unknown command \"" << command << "\"; `ovelt commands` lists them.\n";
    return kCliUsage;
  }
  ConsolePlatform platform(s.err);
  Workbench wb(platform);
  if (!job.file.empty() && !OpenJob(job, wb, platform, s.err)) return kCliRefused;
  const CommandFacts* row = &found->Facts;
  const MenuEntry* entry = wb.Menus().FindCommand(row->Number());
  if (entry == nullptr || !entry->enabled) {
    s.err << "Ovelt:\nThe command \"" << row->Title << "\" is not available "
          << (wb.FileOpen() ? "while a data file is open" : "without an open data file") << ".\n";
    return kCliRefused;
  }
  if (found->Binding != nullptr)
    if (const std::unique_ptr<CommandOptions> options = found->Binding->NewOptions())
      platform.set_flags = SetFlagKeys(*options);
  if (!wb.BeginCommand(row->Number())) return kCliRefused;
  s.out << "Command " << row->Number() << " \"" << row->Title
        << "\": the checks before its dialog (" << row->ChecksText << ") pass; its dialog is "
        << row->Dialog << ".\n";
  wb.EndCommand();
  return kCliDone;
}

}  // namespace

void AddDataCommands(CliRegistry& registry) {
  auto& info_job = registry.Keep<FileJob>();
  AddFileJob(registry.Add("info", "Open a data file and print its Data Information",
                          [&info_job](const CliStreams& s) { return RunInfo(info_job, s); }),
             info_job);

  auto& sites_job = registry.Keep<FileJob>();
  auto& view = registry.Keep<SiteViewOptions>();
  CLI::App& sites = registry.Add(
      "sites",
      "Select sequences and a region and report the site classes of the selection: the report "
      "head, net sites, segregating sites, per-site classes and diversities (--grid)",
      [&sites_job, &view](const CliStreams& s) { return RunSites(sites_job, view, s); });
  AddFileJob(sites, sites_job);
  AddSiteViewOptions(sites, view);

  auto& check_job = registry.Keep<FileJob>();
  auto& check_command = registry.Keep<std::string>();
  CLI::App& check =
      registry.Add("check", "Run the checks a command makes before its dialog opens (refusals)",
                   [&check_job, &check_command](const CliStreams& s) {
                     return RunCheck(check_command, check_job, s);
                   });
  check.add_option("COMMAND", check_command, "Command number, name or title")->required();
  check.add_option("FILE", check_job.file, "Alignment file");
  AddDataOptions(check, check_job.data);
}

}  // namespace ovelt
