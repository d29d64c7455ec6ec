#pragma once
// What the shell knows of a command before it runs: its number and title, its menu entry, the
// checks made before its dialog opens, the smallest selection it takes, its dialog, and the
// captions and table head of its output windows.

#include <cstdint>
#include <string>
#include <vector>

#include "core/command_id.h"
#include "output/result_labels.h"

namespace ovelt {

// Checks made before a command's dialog opens, in the order they are made.
enum class Check {
  kOneSequence,    // NumSeqs is 1
  kFourSequences,  // NumSeqs below 4
  kTwoSequences,   // NumSeqs is 2 (no command uses it at present)
  kTwoSets,        // fewer than two sequence sets
  kOneSet,         // no sequence set
  kCodingRegion,   // no coding region: ask to define one
  kPrefTable,      // no preferred/unpreferred codon table assigned
  kCodingNotice,   // no coding region: notice, OK goes on
  kActiveSets,     // gene flow: counts of defined and active sets
  kSetsWithSeqs,   // fewer than two sets with included sequences
  kNoOpenFile,     // needs no open file (concatenation)
};

struct CommandFacts {
  CommandId Id = CommandId::kNone;
  std::string Title;    // status line, refusals, the dialog's caption
  std::string Handler;  // menu handler name
  std::string MenuText;
  std::vector<Check> Checks;
  std::string ChecksText;  // the checks as the command table lists them
  std::string Dialog;
  std::string Menu;         // "Analysis", "Overview", "Generate" or "Tools"
  std::string CliName;      // subcommand of the command line
  std::string Description;  // one line for `ovelt --help`
  // Sequences the selection of a run must hold (0: no minimum).
  int32_t MinimumSequences = 0;
  // "Only one sequence in the Data File. " and these words, for the commands that word the
  // one-sequence refusal their own way; empty: "Can't compute " and the title.
  std::string OneSequenceWords;
  // The question of the two-sets refusal, for the commands that ask it their own way; empty:
  // "The present analysis requires, at least, the definition of 2 Sets of Sequences. ..."
  std::string TwoSetsQuestion;
  // The titles, captions and table head of its output windows.
  ResultLabels Labels;
  // The code of its result in the table of titles, for the two calculators whose code is not
  // their number modulo 1000 (tests of independence 40, distributions 41); 0 otherwise.
  int16_t ResultCodeOverride = 0;

  [[nodiscard]] int16_t Number() const { return ::ovelt::Number(Id); }
  [[nodiscard]] int16_t ResultCode() const {
    return ResultCodeOverride != 0 ? ResultCodeOverride : TitleCode(Id);
  }
};

}  // namespace ovelt
