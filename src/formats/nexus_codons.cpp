// The CODONS block: codon positions of the sites and the genetic code.

#include "core/genetic_code.h"
#include "core/text_case.h"
#include "formats/nexus_errors.h"
#include "formats/nexus_parts.h"

namespace ovelt {

namespace {

// Index past "[*] name [(format)] =" at the start of `args`; code 5 when it is not there.
size_t SkipHead(const std::vector<NexusToken>& args) {
  size_t i = 0;
  if (i < args.size() && args[i].is('*')) ++i;
  if (i < args.size() && (args[i].type == NexusToken::kWord || args[i].type == NexusToken::kQuoted))
    ++i;
  if (i < args.size() && args[i].is('(')) {
    for (++i; i < args.size() && !args[i].is(')'); ++i) {
      // A vector of positions ("N12312...") is not read.
      if (args[i].is_word("VECTOR")) throw NexusFault(kNexusCodonsBlock);
    }
    if (i >= args.size()) throw NexusFault(kNexusCodonsBlock);
    ++i;
  }
  if (i >= args.size() || !args[i].is('=')) throw NexusFault(kNexusCodonsBlock);
  return i + 1;
}

int16_t PositionOfLabel(const NexusToken& token) {
  if (token.type != NexusToken::kWord) throw NexusFault(kNexusCodonsBlock);
  const std::string upper = token.upper();
  if (upper == "N" || upper == "?") return 0;
  if (upper == "1" || upper == "2" || upper == "3") return static_cast<int16_t>(upper[0] - '0');
  throw NexusFault(kNexusCodonsBlock);
}

void ReadCodonPositions(const NexusCommand& command, const NexusNames& names,
                        const std::vector<DomainSet>& domains, NexusExtras& extras) {
  const std::vector<NexusToken>& args = command.args;
  std::vector<int16_t> positions(static_cast<size_t>(names.nchar) + 1, 0);
  NexusListContext context;
  context.last = names.nchar;
  context.lookup = [&names, &domains](const std::string& key)
      -> std::optional<std::vector<int32_t>> {
    if (key.empty()) return std::nullopt;
    if (auto it = names.char_numbers.find(key); it != names.char_numbers.end())
      return std::vector<int32_t>{it->second};
    for (const DomainSet& domain : domains) {
      if (NexusNameKey(domain.Name) == key) return domain.Sites;
    }
    return std::nullopt;
  };
  size_t i = SkipHead(args);
  while (i < args.size()) {
    const int16_t value = PositionOfLabel(args[i]);
    if (i + 1 >= args.size() || !args[i + 1].is(':')) throw NexusFault(kNexusCodonsBlock);
    size_t end = i + 2;
    while (end < args.size() && !args[end].is(',')) ++end;
    for (int32_t site : ReadNexusList(args, i + 2, end, context, kNexusCodonsBlock))
      positions[static_cast<size_t>(site)] = value;
    i = end + 1;
  }
  extras.CodonPosition = std::move(positions);
  extras.Format.CodingAssigned = 1;
}

void ReadCodeName(const NexusToken& name, NexusExtras& extras) {
  if (name.type != NexusToken::kWord && name.type != NexusToken::kQuoted)
    throw NexusFault(kNexusCodonsBlock);
  int16_t index = GeneticCodeIndexFromName(name.text);
  if (index == 0) {
    extras.Warnings.emplace_back(kNexusBadGeneticCode);
    index = 1;
  }
  extras.Format.GeneticCodeIndex = index;
}

}  // namespace

void ReadCodonsBlock(const NexusRawBlock& block, const NexusNames& names, NexusExtras& extras,
                     std::vector<std::string>& kept, std::string_view text) {
  for (const NexusCommand& command : block.commands) {
    if (command.name == "CODONPOSSET" || command.name == "CODPOSSET") {
      ReadCodonPositions(command, names, extras.Domains, extras);
    } else if (command.name == "CODESET") {
      const size_t i = SkipHead(command.args);
      if (i >= command.args.size()) throw NexusFault(kNexusCodonsBlock);
      ReadCodeName(command.args[i], extras);
    } else if (command.name == "GENCODE") {
      size_t i = 0;
      if (i < command.args.size() && command.args[i].is('(')) {
        while (i < command.args.size() && !command.args[i].is(')')) ++i;
        ++i;
      }
      if (i >= command.args.size()) throw NexusFault(kNexusCodonsBlock);
      ReadCodeName(command.args[i], extras);
    } else {
      kept.push_back(NexusCommandText(text, command));
    }
  }
}

}  // namespace ovelt
