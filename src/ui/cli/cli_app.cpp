#include "ui/cli/cli_app.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <ostream>

#include "core/genetic_code.h"
#include "core/shell/command_table.h"
#include "core/shell/data_information.h"
#include "core/shell/workbench.h"
#include "output/analysis_titles.h"
#include "ui/cli/command_listing.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/data_options.h"
#include "ui/cli/output_options.h"
#include "ui/cli/site_view.h"

namespace ovelt {

namespace {

constexpr int kDone = 0;
constexpr int kRefused = 1;

// What every subcommand that opens a file shares.
struct FileJob {
  std::string file;
  DataOptions data;
  OutputOptions output;
};

void AddFileJob(CLI::App& app, FileJob& job) {
  app.add_option("FILE", job.file, "Alignment file (FASTA, NBRF/PIR, MEGA, PHYLIP)")
      ->required();
  AddDataOptions(app, job.data);
  AddOutputOptions(app, job.output);
}

// Opens the file and applies the data settings; false when refused (message already shown).
bool OpenJob(const FileJob& job, Workbench& wb, ConsolePlatform& platform, std::ostream& err) {
  if (!PrepareDataOptions(job.data, platform, err)) return false;
  if (!BeginSession(job.output, wb, platform)) return false;
  if (!wb.OpenPath(job.file)) return false;
  return ApplyDataOptions(job.data, wb, err);
}

int RunInfo(const FileJob& job, std::ostream& out, std::ostream& err) {
  ConsolePlatform platform(err);
  Workbench wb(platform);
  if (!OpenJob(job, wb, platform, err)) return kRefused;
  const std::vector<InfoRow> rows = DataInformationRows(wb.Data());
  OutputChannel& channel = wb.Output();
  channel.ResetOutputs();
  channel.AppendText(DataInformationText(rows));
  channel.Grid1.ColumnTitles = {"", kDataInformationTitle};
  for (const auto& [label, value] : rows) channel.Grid1.Rows.push_back({label, value});
  channel.ResultTitle = kDataInformationTitle;
  channel.ShowResult(kResultTextOnly);
  return FinishOutput(job.output, wb, kDataInformationTitle, out) ? kDone : kRefused;
}

int RunSites(const FileJob& job, const SiteViewOptions& view, std::ostream& out,
             std::ostream& err) {
  ConsolePlatform platform(err);
  Workbench wb(platform);
  if (!OpenJob(job, wb, platform, err)) return kRefused;
  if (!RunSiteView(wb, view)) return kRefused;
  return FinishOutput(job.output, wb, "Site Classes", out) ? kDone : kRefused;
}

int RunCheck(const std::string& command, const FileJob& job, std::ostream& out,
             std::ostream& err) {
  const CommandRow* row = FindCommand(command);
  if (row == nullptr) {
    err << "Unknown command \"" << command << "\"; `ovelt commands` lists them.\n";
    return 2;
  }
  ConsolePlatform platform(err);
  Workbench wb(platform);
  if (!job.file.empty() && !OpenJob(job, wb, platform, err)) return kRefused;
  const MenuEntry* entry = wb.Menus().FindCommand(row->number);
  if (entry == nullptr || !entry->enabled) {
    err << "Ovelt:\nThe command \"" << row->title << "\" is not available "
        << (wb.FileOpen() ? "while a data file is open" : "without an open data file") << ".\n";
    return kRefused;
  }
  if (!wb.BeginCommand(row->number)) return kRefused;
  out << "Command " << row->number << " \"" << row->title
      << "\": the checks before its dialog (" << row->checks_text << ") pass; its dialog is "
      << row->dialog << ".\n";
  wb.EndCommand();
  return kDone;
}

int RunRecent(std::ostream& out, std::ostream& err) {
  ConsolePlatform platform(err);
  Workbench wb(platform);
  for (int n = 1; n <= 4; ++n)
    if (!wb.Recent().Entry(n).empty()) out << n << " " << wb.Recent().Entry(n) << "\n";
  return kDone;
}

int RunGeneticCodes(std::ostream& out) {
  for (int16_t i = 1; i <= kGeneticCodeCount; ++i)
    out << i << "  " << GeneticCodeText(i) << "  (NEXUS name " << GeneticCodeNexusName(i)
        << ")\n";
  return kDone;
}

}  // namespace

int RunCli(int argc, char** argv, std::ostream& out, std::ostream& err) {
  CLI::App app{"Ovelt Workbench " + std::string(kVersionText) +
               ": population-genetic analysis of aligned DNA sequences."};
  app.require_subcommand(1);
  app.set_version_flag("--version", std::string("Ovelt Workbench ") + kVersionText);

  auto* commands = app.add_subcommand("commands", "List the command table");
  std::string help_key;
  auto* help = app.add_subcommand("help", "Describe one command of the table");
  help->add_option("COMMAND", help_key, "Command number, name or title")->required();
  auto* codes = app.add_subcommand("genetic-codes", "List the ten genetic codes");
  auto* recent = app.add_subcommand("recent", "List the recently opened data files");

  FileJob info_job;
  auto* info = app.add_subcommand("info", "Open a data file and print its Data Information");
  AddFileJob(*info, info_job);

  FileJob sites_job;
  SiteViewOptions view;
  auto* sites = app.add_subcommand(
      "sites",
      "Select sequences and a region and report the site classes of the selection: the report "
      "head, net sites, segregating sites, per-site classes and diversities (--grid)");
  AddFileJob(*sites, sites_job);
  AddSiteViewOptions(*sites, view);

  FileJob check_job;
  std::string check_command;
  auto* check = app.add_subcommand(
      "check", "Run the checks a command makes before its dialog opens (refusals)");
  check->add_option("COMMAND", check_command, "Command number, name or title")->required();
  check->add_option("FILE", check_job.file, "Alignment file");
  AddDataOptions(*check, check_job.data);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e, out, err) == 0 ? kDone : 2;
  }

  if (*commands) {
    out << CommandListing();
    return kDone;
  }
  if (*help) {
    const CommandRow* row = FindCommand(help_key);
    if (row == nullptr) {
      err << "Unknown command \"" << help_key << "\"; `ovelt commands` lists them.\n";
      return 2;
    }
    out << CommandHelp(*row);
    return kDone;
  }
  if (*codes) return RunGeneticCodes(out);
  if (*recent) return RunRecent(out, err);
  if (*info) return RunInfo(info_job, out, err);
  if (*sites) return RunSites(sites_job, view, out, err);
  if (*check) return RunCheck(check_command, check_job, out, err);
  return 2;
}

}  // namespace ovelt
