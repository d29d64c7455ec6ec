#pragma once
// Sequence sets written as text, as the command line takes them: NAME=1-5,8 defines the set
// NAME of file sequences 1 to 5 and 8.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"

namespace ovelt {

struct ParsedSetDefinition {
  std::string name;
  std::vector<int32_t> members;  // file sequence numbers, in the order written, each once
  std::string error;             // empty when the definition is good
  [[nodiscard]] bool ok() const { return error.empty(); }
};

struct ParsedSequenceList {
  std::vector<int32_t> members;  // file sequence numbers, in the order written, each once
  std::string error;             // empty when the list is good
  [[nodiscard]] bool ok() const { return error.empty(); }
};

// Parses a LIST of sequence numbers and ranges "a-b" separated by commas; every number must
// lie in 1..`total_seqs`. `where` ends the messages (" in the definition of sequence set X").
[[nodiscard]] ParsedSequenceList ParseSequenceList(const std::string& list, int32_t total_seqs,
                                                   const std::string& where = "");

// Parses "NAME=LIST": LIST is a comma-separated list of sequence numbers and ranges "a-b"
// (a <= b); blanks around items are ignored. The name must pass the check of the sets dialog
// and be made of letters, digits and "_"; every number must lie in 1..`total_seqs`.
[[nodiscard]] ParsedSetDefinition ParseSetDefinition(const std::string& text, int32_t total_seqs);

// Appends a new active set to `SequenceSets`; nullopt on success, else the message of the name
// check (a duplicate name among the existing sets is refused).
[[nodiscard]] std::optional<std::string> AddSequenceSet(ActiveData& ad, const std::string& name,
                                                        const std::vector<int32_t>& members);

}  // namespace ovelt
