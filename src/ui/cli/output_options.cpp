#include "ui/cli/output_options.h"

#include <CLI/CLI.hpp>

#include <ostream>

#include "files/whole_file.h"
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

std::string Trimmed(const std::string& cell) {
  const size_t first = cell.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return cell.substr(first, cell.find_last_not_of(' ') - first + 1);
}

// The table for scripts when the result made one; otherwise the window's cells, trimmed.
std::string GridTsv(const OutputGrid& grid) {
  if (!grid.Data.Empty()) return DataTableTsv(grid.Data);
  std::string text;
  auto add_row = [&text](const std::vector<std::string>& cells) {
    for (size_t i = 0; i < cells.size(); ++i) text += (i ? "\t" : "") + Trimmed(cells[i]);
    text += "\n";
  };
  if (!grid.ColumnTitles.empty()) add_row(grid.ColumnTitles);
  for (const auto& row : grid.Rows) add_row(row);
  return text;
}

// "-" is standard output, as for --json.
bool WriteGridTsv(const OutputGrid& grid, const std::string& path, Platform& platform,
                  std::ostream& out) {
  if (path == "-") {
    out << GridTsv(grid);
    out.flush();
    return static_cast<bool>(out);
  }
  if (!WriteWholeFile(path, GridTsv(grid))) {
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
  app.add_option("--grid", o.grid,
                 "Write the result's grid to this file as tab-separated values (- for standard "
                 "output)")
      ->group(group);
  app.add_option("--graph", o.graph,
                 "Draw the run's graph on this file (.png, .svg or .bmp), for the commands that "
                 "leave one (sliding windows, mismatch distribution)")
      ->check(CLI::Validator(GraphFileNameFault, "FILE.png|.svg|.bmp"))
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
  // A table too long for the grid was written to the --grid file already.
  if (!o.grid.empty() && channel.TooBigSaved == 0)
    ok = WriteGridTsv(channel.Grid1, o.grid, wb.Ui(), out) && ok;
  if (!o.graph.empty()) ok = WriteGraphFile(channel, o.graph, wb.Ui()) && ok;
  return channel.CloseSessionFile() && ok;
}

}  // namespace ovelt
