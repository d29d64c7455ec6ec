#include "ui/cli/export_commands.h"

#include <CLI/CLI.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "shell/workbench.h"
#include "formats/data_file_writer.h"
#include "formats/nexus_writer_options.h"
#include "formats/update_nexus.h"
#include "ui/cli/cli_registry.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/file_job.h"
#include "ui/cli/option_flags.h"

namespace ovelt {

namespace {

// The address of every field of an options struct, in the order of its declaration.
class FieldAddresses {
 public:
  void Region(int32_t& from, int32_t& to) {
    at.push_back(&from);
    at.push_back(&to);
  }
  void SetIndex(int16_t& v, const OptionField&) { at.push_back(&v); }
  void Flag(bool& v, const OptionField&) { at.push_back(&v); }
  void Integer(int32_t& v, const OptionField&, int64_t, int64_t) { at.push_back(&v); }
  void Real(double& v, const OptionField&, double, double) { at.push_back(&v); }
  void Choice(int16_t& v, const OptionField&, const std::vector<std::string>&, int16_t) {
    at.push_back(&v);
  }
  void Text(std::string& v, const OptionField&) { at.push_back(&v); }
  std::vector<void*> at;
};

// Copies into the options it visits the fields whose flags were given on the command line, so
// that a flag left out keeps what the open file says.
class GivenFlagsCopy {
 public:
  GivenFlagsCopy(const CLI::App& app, const std::vector<void*>& given) : app_(app), given_(given) {}
  void Region(int32_t&, int32_t&) { next_ += 2; }
  void SetIndex(int16_t& v, const OptionField& f) { Take(v, f); }
  void Flag(bool& v, const OptionField& f) { Take(v, f); }
  void Integer(int32_t& v, const OptionField& f, int64_t, int64_t) { Take(v, f); }
  void Real(double& v, const OptionField& f, double, double) { Take(v, f); }
  void Choice(int16_t& v, const OptionField& f, const std::vector<std::string>&, int16_t) {
    Take(v, f);
  }
  void Text(std::string& v, const OptionField& f) { Take(v, f); }

 private:
  template <class T>
  void Take(T& value, const OptionField& field) {
    const T* flag_value = static_cast<const T*>(given_[next_++]);
    if (app_.count("--" + field.key) > 0) value = *flag_value;
  }
  const CLI::App& app_;
  const std::vector<void*>& given_;
  size_t next_ = 0;
};

struct WriteJob {
  FileJob job;
  NexusSaveOptions flags;
  PendingOptionFlags pending;
  std::string format;
  std::string output;
  CLI::App* app = nullptr;
};

// The options of the file with the flags given on top, checked as the dialog's OK checks them,
// then stored in the file's format attributes. False (message shown) when refused.
bool ApplyNexusFlags(WriteJob& w, Workbench& wb) {
  NexusSaveOptions options = NexusSaveOptionsFrom(wb.Data().Format);
  FieldAddresses given;
  w.flags.Visit(given);
  GivenFlagsCopy copy(*w.app, given.at);
  options.Visit(copy);
  if (auto refusal = ValidateNexusSaveOptions(options)) {
    wb.Ui().MessageBox(refusal->Text, MsgIcon::kWarning, MsgButtons::kOk, refusal->Title);
    return false;
  }
  ApplyNexusSaveOptions(options, wb.Data().Format);
  return true;
}

int RunExport(WriteJob& w, const CliStreams& s) {
  const WriterKind* kind = FindWriterKind(w.format);
  ConsolePlatform platform(s.err);
  Workbench wb(platform);
  if (!OpenJob(w.job, wb, platform, s.err)) return kCliRefused;
  if (!ApplyNexusFlags(w, wb)) return kCliRefused;
  platform.save_name = w.output;
  const bool written = ExportDataFile(wb.Data(), platform, kind->MenuIndex, kVersionText);
  wb.SetStatus(0);
  return written ? kCliDone : kCliRefused;
}

int RunUpdateNexus(WriteJob& w, const CliStreams& s) {
  ConsolePlatform platform(s.err);
  Workbench wb(platform);
  if (!OpenJob(w.job, wb, platform, s.err)) return kCliRefused;
  if (!wb.Menus().Enabled("MenuUpdateNEXUS_Click")) {
    s.err << "Ovelt:\nThe command \"Update NEXUS Data File\" is available only for a NEXUS data "
             "file.\n";
    return kCliRefused;
  }
  if (!ApplyNexusFlags(w, wb)) return kCliRefused;
  // The shape of the file (block order, unread blocks, comments), as its reader recorded it;
  // without it the file is written as the plain writer writes it.
  const NexusDocument document = wb.NexusBlocks().value_or(NexusDocument{});
  const bool written =
      UpdateNexusDataFile(wb.Data(), document, wb.ReadPath(), platform, kVersionText);
  wb.SetStatus(0);
  return written ? kCliDone : kCliRefused;
}

void AddWriteFlags(CLI::App& app, WriteJob& w) {
  w.app = &app;
  app.add_option("FILE", w.job.file, "Alignment file (FASTA, NBRF/PIR, MEGA, PHYLIP, NEXUS)")
      ->required();
  AddDataOptions(app, w.job.data);
  OptionFlagBinder binder(app, w.pending);
  w.flags.Visit(binder);
}

}  // namespace

void AddExportCommands(CliRegistry& registry) {
  auto& exporting = registry.Keep<WriteJob>();
  CLI::App& export_app = registry.Add(
      "export",
      "Save / Export Data As...: write the included sequences as FASTA, MEGA, NBRF, NEXUS or "
      "PHYLIP; NEXUS keeps sequence sets, domains, coding regions, genetic code and genome "
      "attributes",
      [&exporting](const CliStreams& s) { return RunExport(exporting, s); });
  AddWriteFlags(export_app, exporting);
  std::vector<std::string> keys;
  for (const WriterKind& kind : WriterKinds()) keys.push_back(kind.Key);
  export_app.add_option("--format,-f", exporting.format, "Format of the written file")
      ->required()
      ->check(CLI::IsMember(keys, CLI::ignore_case));
  export_app.add_option("-o,--output", exporting.output, "The file to write")->required();

  auto& updating = registry.Keep<WriteJob>();
  CLI::App& update_app = registry.Add(
      "update-nexus",
      "Update NEXUS Data File: rewrite the NEXUS file with the settings given here (sets, "
      "coding regions, genetic code, ...), keeping its other blocks and comments in place",
      [&updating](const CliStreams& s) { return RunUpdateNexus(updating, s); });
  AddWriteFlags(update_app, updating);
}

}  // namespace ovelt
