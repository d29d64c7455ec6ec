#include "ui/cli/output_options.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <ostream>

#include "shell/workbench.h"
#include "ui/cli/console_platform.h"
#include "ui/cli/graph_output.h"

namespace ovelt {

namespace {

// Reports are built with CR LF; standard output gets the platform's line ends.
std::string WithNewlines(const std::string& text) {
  std::string plain;
  plain.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    plain += text[i];
  }
  return plain;
}

bool WriteGridTsv(const OutputGrid& grid, const std::string& path, Platform& platform) {
  std::ofstream file(path, std::ios::binary);
  auto write_row = [&file](const std::vector<std::string>& cells) {
    for (size_t i = 0; i < cells.size(); ++i) file << (i ? "\t" : "") << cells[i];
    file << "\n";
  };
  if (file) {
    if (!grid.ColumnTitles.empty()) write_row(grid.ColumnTitles);
    for (const auto& row : grid.Rows) write_row(row);
    file.flush();
  }
  if (!file) {
    platform.MessageBox("Can't save the output on the file: " + path, MsgIcon::kWarning);
    return false;
  }
  return true;
}

}  // namespace

void AddOutputOptions(CLI::App& app, OutputOptions& o) {
  const char* group = "Output";
  app.add_option("--out", o.out, "Save the output on this file (Save Current Output)")
      ->group(group);
  app.add_option("--session", o.session,
                 "Send all output to this session file (Send All Output to File)")
      ->group(group);
  app.add_option("--grid", o.grid, "Write the result's grid to this file as tab-separated values")
      ->group(group);
  app.add_option("--graph", o.graph,
                 "Draw the run's graph on this file (.png, .svg or .bmp), for the commands that "
                 "leave one (sliding windows, mismatch distribution)")
      ->group(group);
}

bool BeginSession(const OutputOptions& o, Workbench& wb, ConsolePlatform&) {
  if (o.session.empty()) return true;
  return wb.Output().SendAllOutput(o.session);
}

bool FinishOutput(const OutputOptions& o, Workbench& wb, const std::string& title,
                  std::ostream& out, bool print_text) {
  OutputChannel& channel = wb.Output();
  if (channel.Labels.Title.empty()) channel.Labels.Title = title;
  if (print_text) {
    out << WithNewlines(channel.TextBuffer);
    out.flush();
  }
  bool ok = true;
  if (!o.out.empty()) ok = channel.SaveCurrentOutput(o.out) && ok;
  if (!o.grid.empty()) ok = WriteGridTsv(channel.Grid1, o.grid, wb.Ui()) && ok;
  if (!o.graph.empty()) ok = WriteGraphFile(channel, o.graph, wb.Ui()) && ok;
  channel.CloseSessionFile();
  return ok;
}

}  // namespace ovelt
