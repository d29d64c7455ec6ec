#pragma once
// The settings a desktop user makes in the Data menu, given as command-line options and applied
// to the open file in the order a user would make them: sequence sets, included sequences and
// populations, gap and mutation settings, coding regions, genetic code, file attributes.

#include <iosfwd>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace CLI {
class App;
}

namespace ovelt {

class Workbench;
class ConsolePlatform;

struct DataOptions {
  // "MEGA Data File" dialog.
  std::string mega_layout = "sequential";
  std::string mega_match = ".", mega_gap = "-", mega_missing = "?";
  // Sequence sets and inclusion.
  std::vector<std::string> set_defs;      // NAME=1-5,8
  std::vector<std::string> inactive_sets; // names of sets excluded from analyses
  std::string include;                    // LIST of file sequence numbers to include
  std::string exclude;                    // LIST to exclude
  // Form17.
  int gaps_in_sets = 0;                   // 0: leave; 1 or 2
  bool gaps_in_window = false;
  bool use_mutations = false;
  // Coding regions, genetic code, Form16.
  std::vector<std::string> coding;        // FROM-TO or FROM-TO:FIRST (first codon position)
  std::vector<std::string> noncoding;     // FROM-TO
  std::string genetic_code;               // index 1..10 or a name
  std::string location;                   // code 0..7 or a name
  bool haploid = false;
  bool rna = false;
  // Answers.
  bool yes = false;
  bool progress = false;
};

// Declares the options on a subcommand.
void AddDataOptions(CLI::App& app, DataOptions& options);

// Validates what can be checked before a file is opened and fills the platform's answers;
// false with a message on `err` when an option is malformed.
bool PrepareDataOptions(const DataOptions& options, ConsolePlatform& platform, std::ostream& err);

// Applies the options to the open file; false (message shown) when one is refused.
bool ApplyDataOptions(const DataOptions& options, Workbench& workbench, std::ostream& err);

}  // namespace ovelt
