#pragma once
// The table that ties each command to its number, title, menu entry, refusals and dialog.
// One table drives the menus of the desktop, the subcommands of the command line and the
// checks made before a dialog opens.

#include <cstdint>
#include <string>
#include <vector>

namespace ovelt {

// Checks made before a command's dialog opens, in the order they are made.
enum class Check {
  kOneSequence,      // NumSeqs is 1
  kFourSequences,    // NumSeqs below 4
  kTwoSequences,     // NumSeqs is 2 (no command uses it at present)
  kTwoSets,          // fewer than two sequence sets
  kOneSet,           // no sequence set
  kCodingRegion,     // no coding region: ask to define one
  kPrefTable,        // no preferred/unpreferred codon table assigned
  kCodingNotice,     // no coding region: notice, OK goes on
  kActiveSets,       // gene flow: counts of defined and active sets
  kSetsWithSeqs,     // fewer than two sets with included sequences
  kNoOpenFile,       // needs no open file (concatenation)
};

struct CommandRow {
  int16_t number;             // Analysis code: number modulo 1000 indexes the title table
  std::string title;
  std::string handler;        // menu handler name
  std::string menu_text;
  std::vector<Check> checks;  // in the order they run
  std::string checks_text;    // the checks as the table lists them
  std::string dialog;
  std::string menu;           // "Analysis", "Overview", "Generate" or "Tools"
  std::string cli_name;       // subcommand name of the command line
};

// Every numbered command, in the order of the table.
[[nodiscard]] const std::vector<CommandRow>& CommandTable();

// The row of a command number (with or without the 1000 of two-set commands); nullptr if none.
[[nodiscard]] const CommandRow* FindCommand(int number);
// The row whose command-line name, number or title matches `key`; nullptr if none.
[[nodiscard]] const CommandRow* FindCommand(const std::string& key);

// The title of a command number modulo 1000 ("" when the number has none).
[[nodiscard]] std::string CommandTitle(int number);

}  // namespace ovelt
