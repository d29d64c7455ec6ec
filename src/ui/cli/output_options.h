#pragma once
// Where the command line sends a result: standard output always; a saved output file (--out),
// the session file of "Send All Output to File" (--session) and the grid as TSV (--grid).

#include <iosfwd>
#include <string>

namespace CLI {
class App;
}

namespace ovelt {

class Workbench;
class ConsolePlatform;

struct OutputOptions {
  std::string out;      // Save Current Output
  std::string session;  // Send All Output to File (appended to when the file exists? no: new)
  std::string grid;     // the grid as tab-separated values
  std::string graph;    // the run's chart as a picture (.png, .svg, .bmp)
};

void AddOutputOptions(CLI::App& app, OutputOptions& options);

// Opens the session file when asked for; false (message shown) when it cannot be opened.
bool BeginSession(const OutputOptions& options, Workbench& wb, ConsolePlatform& platform);

// Prints the text of the result that stands, writes the files asked for, closes the session.
// `title` names the result where no analysis code does. False when a file could not be written.
// `print_text` false keeps standard output for something else (JSON).
bool FinishOutput(const OutputOptions& options, Workbench& wb, const std::string& title,
                  std::ostream& out, bool print_text = true);

}  // namespace ovelt
