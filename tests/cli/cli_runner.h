#pragma once
// Runs the command line in process, as a user would from a shell, and keeps what it printed.

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "ui/cli/cli_app.h"

namespace ovelt::testing {

struct CliResult {
  int status = -1;
  std::string out;
  std::string err;
};

inline CliResult RunOvelt(std::vector<std::string> args, const std::string& home) {
  ::setenv("OVELT_HOME", home.c_str(), 1);
#ifdef OVELT_GRAPH_MODULE_BUILT
  // The test program does not stand beside the chart module as `ovelt` does; a test that points
  // the variable elsewhere keeps its own value.
  ::setenv("OVELT_GRAPH_MODULE_DIR", OVELT_GRAPH_MODULE_BUILT, 0);
#endif
  args.insert(args.begin(), "ovelt");
  std::vector<char*> argv;
  for (auto& a : args) argv.push_back(a.data());
  std::ostringstream out, err;
  CliResult r;
  r.status = RunCli(static_cast<int>(argv.size()), argv.data(), out, err);
  r.out = out.str();
  r.err = err.str();
  return r;
}

}  // namespace ovelt::testing
