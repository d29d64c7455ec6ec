#pragma once
// The first pass over a NEXUS text: the "#NEXUS" token, then the blocks, each cut into its
// commands (a name and the tokens up to ";"). Nothing is interpreted yet, so that the reader
// can choose among several TAXA and CHARACTERS blocks before it reads one, and read SETS and
// CODONS blocks after the matrix whatever their place.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/nexus_document.h"
#include "formats/nexus_lexer.h"

namespace ovelt {

struct NexusCommand {
  std::string name;              // upper case
  std::vector<NexusToken> args;  // tokens after the name, up to the ";" (not included)
  size_t begin = 0;              // span of the whole command in the text, ";" included
  size_t end = 0;
  // MATRIX only: the span of its content, from after the word MATRIX to its ";" (excluded).
  size_t matrix_begin = 0;
  size_t matrix_end = 0;
};

struct NexusRawBlock {
  // Kind, name, leading text and whole text; the whole text of a DATA or CHARACTERS block (the
  // matrix: most of a large file) is not copied here but left at [text_begin, text_end).
  NexusBlock block;
  std::vector<NexusCommand> commands;  // known kinds only; an unknown block keeps its text
  size_t text_begin = 0;
  size_t text_end = 0;

  [[nodiscard]] const NexusCommand* Find(std::string_view upper_name) const;
};

struct NexusFile {
  std::vector<NexusRawBlock> blocks;
  std::string trailing;
};

// Splits `text` (line ends already "\n"). Throws NexusFault(1) when the first token is not
// "#NEXUS".
// `passed`, when given, is told of each MATRIX content passed over, [from, to): it is read
// later, and its memory need not be held until then.
[[nodiscard]] NexusFile SplitNexusBlocks(std::string_view text,
                                         const std::function<void(size_t, size_t)>& passed = {});

// Kind of a block from its name, without regard to case.
[[nodiscard]] NexusBlockKind NexusBlockKindOf(const std::string& name);

}  // namespace ovelt
