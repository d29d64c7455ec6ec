#include "formats/nexus_blocks.h"

#include <utility>

#include "core/text_case.h"
#include "formats/nexus_errors.h"

namespace ovelt {

namespace {

bool IsBlockEnd(const NexusToken& token) {
  return token.is_word("END") || token.is_word("ENDBLOCK");
}

// Reads the commands of a block from the lexer's position up to its END (consumed, with its
// ";") or the end of the text. `keep` false: the commands are scanned, not stored.
void ReadCommands(NexusLexer& lexer, bool keep, std::vector<NexusCommand>& commands,
                  const std::function<void(size_t, size_t)>& passed) {
  for (;;) {
    NexusToken token = lexer.Next();
    if (token.type == NexusToken::kEnd) return;
    if (IsBlockEnd(token)) {
      if (lexer.Peek().is(';')) (void)lexer.Next();
      return;
    }
    if (token.is(';')) continue;
    NexusCommand command;
    command.name = token.upper();
    command.begin = token.begin;
    const bool matrix = command.name == "MATRIX";
    command.matrix_begin = token.end;
    if (matrix) {
      // The cells are read later from the text: here only their end is wanted.
      const size_t from = lexer.pos();
      if (lexer.SkipToSemicolon(passed)) {
        if (passed) passed(from, lexer.pos());
        const NexusToken semicolon = lexer.Next();
        command.matrix_end = semicolon.begin;
        command.end = semicolon.end;
        if (keep) commands.push_back(std::move(command));
        continue;
      }
      lexer.set_pos(from);  // no ";": the token walk below finds where the content ends
    }
    for (;;) {
      const size_t before = lexer.pos();
      NexusToken arg = lexer.Next();
      if (arg.type == NexusToken::kEnd || arg.is(';')) {
        command.matrix_end = arg.type == NexusToken::kEnd ? before : arg.begin;
        command.end = arg.end;
        break;
      }
      if (keep && !matrix) command.args.push_back(std::move(arg));
    }
    if (keep) commands.push_back(std::move(command));
  }
}

}  // namespace

const NexusCommand* NexusRawBlock::Find(std::string_view upper_name) const {
  for (const NexusCommand& command : commands) {
    if (command.name == upper_name) return &command;
  }
  return nullptr;
}

NexusBlockKind NexusBlockKindOf(const std::string& name) {
  const std::string upper = ToUpperAscii(name);
  if (upper == "DATA") return NexusBlockKind::kData;
  if (upper == "TAXA") return NexusBlockKind::kTaxa;
  if (upper == "CHARACTERS") return NexusBlockKind::kCharacters;
  if (upper == "CODONS") return NexusBlockKind::kCodons;
  if (upper == "SETS") return NexusBlockKind::kSets;
  if (upper == "OVELT") return NexusBlockKind::kOwn;
  if (upper == "CODONUSAGE") return NexusBlockKind::kCodonUsage;
  return NexusBlockKind::kOther;
}

NexusFile SplitNexusBlocks(std::string_view text,
                           const std::function<void(size_t, size_t)>& passed) {
  NexusLexer lexer(text);
  const NexusToken first = lexer.Next();
  if (!first.is_word("#NEXUS")) throw NexusFault(kNexusNoToken);

  NexusFile file;
  size_t leading_from = first.end;
  for (;;) {
    const NexusToken token = lexer.Next();
    if (token.type == NexusToken::kEnd) break;
    if (!token.is_word("BEGIN")) continue;  // stray text between blocks stays in the leading
    NexusRawBlock raw;
    const NexusToken name = lexer.Next();
    if (name.type == NexusToken::kEnd) break;
    raw.block.Name = name.text;
    raw.block.Kind = NexusBlockKindOf(name.text);
    raw.block.Leading = std::string(text.substr(leading_from, token.begin - leading_from));
    if (lexer.Peek().is(';')) (void)lexer.Next();
    ReadCommands(lexer, raw.block.Kind != NexusBlockKind::kOther, raw.commands, passed);
    raw.text_begin = token.begin;
    raw.text_end = lexer.pos();
    if (raw.block.Kind != NexusBlockKind::kData && raw.block.Kind != NexusBlockKind::kCharacters)
      raw.block.Text = std::string(text.substr(token.begin, lexer.pos() - token.begin));
    leading_from = lexer.pos();
    file.blocks.push_back(std::move(raw));
  }
  file.trailing = std::string(text.substr(leading_from));
  return file;
}

}  // namespace ovelt
