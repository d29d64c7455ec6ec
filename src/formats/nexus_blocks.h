#pragma once
// The first pass over a NEXUS text: the "#NEXUS" token, then the blocks, each cut into its
// commands (a name and the tokens up to ";"). Nothing is interpreted yet, so that the reader
// can choose among several TAXA and CHARACTERS blocks before it reads one, and read SETS and
// CODONS blocks after the matrix whatever their place.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "formats/nexus_document.h"
#include "formats/nexus_lexer.h"

namespace ovelt {

struct NexusCommand {
  std::string name;               // upper case
  std::vector<NexusToken> args;   // tokens after the name, up to the ";" (not included)
  size_t begin = 0;               // span of the whole command in the text, ";" included
  size_t end = 0;
  // MATRIX only: the span of its content, from after the word MATRIX to its ";" (excluded).
  size_t matrix_begin = 0;
  size_t matrix_end = 0;
};

struct NexusRawBlock {
  NexusBlock block;  // kind, name, leading text and whole text
  std::vector<NexusCommand> commands;  // known kinds only; an unknown block keeps its text

  [[nodiscard]] const NexusCommand* Find(std::string_view upper_name) const;
};

struct NexusFile {
  std::vector<NexusRawBlock> blocks;
  std::string trailing;
};

// Splits `text` (line ends already "\n"). Throws NexusFault(1) when the first token is not
// "#NEXUS".
[[nodiscard]] NexusFile SplitNexusBlocks(std::string_view text);

// Kind of a block from its name, without regard to case.
[[nodiscard]] NexusBlockKind NexusBlockKindOf(const std::string& name);

}  // namespace ovelt
