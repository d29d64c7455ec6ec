// Statements of a read block that go back into the block written in its place.

#include "core/text_case.h"
#include "formats/nexus_writer_blocks.h"

namespace ovelt {

KeptStatements SortKeptStatements(const std::vector<std::string>& statements) {
  KeptStatements kept;
  for (const std::string& statement : statements) {
    const std::string text = TrimBlanks(statement);
    const std::string word = ToUpperAscii(text.substr(0, text.find_first_of(" \t\n=;")));
    (word == "TITLE" || word == "LINK" ? kept.Head : kept.Body).push_back(statement);
  }
  return kept;
}

void WriteKeptStatements(const std::vector<std::string>& statements, WriterLines& out) {
  for (const std::string& statement : statements) out.KeptLine(statement);
}

}  // namespace ovelt
