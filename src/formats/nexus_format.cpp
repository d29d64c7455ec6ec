#include "formats/nexus_parts.h"

#include "core/text_case.h"
#include "formats/nexus_errors.h"
#include "formats/read_messages.h"

namespace ovelt {

namespace {

// The value after "KEY =" at args[i] (the key); moves i past it. nullopt when the key stands
// alone.
std::optional<NexusToken> ValueOf(const std::vector<NexusToken>& args, size_t& i) {
  if (i + 1 >= args.size() || !args[i + 1].is('=')) {
    ++i;
    return std::nullopt;
  }
  if (i + 2 >= args.size()) throw NexusFault(kNexusFormat);
  NexusToken value = args[i + 2];
  i += 3;
  if (value.is('(')) {  // a value list in parentheses: passed over whole
    while (i < args.size() && !args[i].is(')')) ++i;
    if (i < args.size()) ++i;
  }
  return value;
}

char SymbolOf(const std::optional<NexusToken>& value) {
  if (!value || value->text.size() != 1) throw NexusFault(kNexusFormat);
  return value->text[0];
}

bool YesOrNo(const std::optional<NexusToken>& value, bool alone) {
  if (!value) return alone;
  const std::string upper = value->upper();
  if (upper == "YES") return true;
  if (upper == "NO") return false;
  throw NexusFault(kNexusFormat);
}

std::optional<int64_t> WholeNumber(const std::string& text, int64_t max) {
  if (text.empty() || text.size() > 12) return std::nullopt;
  int64_t value = 0;
  for (char c : text) {
    if (!IsAsciiDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  if (value < 1 || value > max) return std::nullopt;
  return value;
}

// Digits only, of a value above `limit` (however many digits).
bool AllDigitsAbove(const std::string& text, int64_t limit) {
  const size_t first = text.find_first_not_of('0');
  if (text.empty() || first == std::string::npos) return false;
  for (char c : text)
    if (!IsAsciiDigit(c)) return false;
  const std::string digits = text.substr(first);
  const std::string most = std::to_string(limit);
  return digits.size() > most.size() || (digits.size() == most.size() && digits > most);
}

}  // namespace

NexusFormat ReadNexusFormat(const NexusCommand& command) {
  NexusFormat format;
  const std::vector<NexusToken>& args = command.args;
  size_t i = 0;
  while (i < args.size()) {
    if (args[i].type != NexusToken::kWord) throw NexusFault(kNexusFormat);
    const std::string key = args[i].upper();
    const std::optional<NexusToken> value = ValueOf(args, i);
    if (key == "DATATYPE") {
      if (!value) throw NexusFault(kNexusFormat);
      const std::string type = value->upper();
      if (type == "PROTEIN") throw NexusFault(kNexusProtein);
      format.rna = type == "RNA";
    } else if (key == "MISSING") {
      format.missing = SymbolOf(value);
    } else if (key == "GAP") {
      format.gap = SymbolOf(value);
    } else if (key == "MATCHCHAR") {
      format.match = SymbolOf(value);
    } else if (key == "INTERLEAVE") {
      format.interleaved = YesOrNo(value, true);
    } else if (key == "NOLABELS") {
      format.row_names = false;
    } else if (key == "LABELS") {
      if (value && value->upper() == "RIGHT") throw NexusFault(kNexusFormat);
      format.row_names = !value || (value->upper() != "NO");
    } else if (key == "TRANSPOSE") {
      // A transposed matrix has characters for rows: not an alignment this reader takes.
      if (YesOrNo(value, true)) throw NexusFault(kNexusFormat);
    }
  }
  return format;
}

std::string NexusDataType(const NexusRawBlock& block) {
  const NexusCommand* format = block.Find("FORMAT");
  if (format == nullptr) return "DNA";
  const std::vector<NexusToken>& args = format->args;
  for (size_t i = 0; i + 2 < args.size(); ++i) {
    if (args[i].is_word("DATATYPE") && args[i + 1].is('=')) return args[i + 2].upper();
  }
  return "DNA";
}

std::string NexusCommandValue(const NexusRawBlock& block, const char* command, const char* key) {
  const NexusCommand* found = block.Find(command);
  if (found == nullptr || found->args.empty()) return "";
  const std::vector<NexusToken>& args = found->args;
  if (key == nullptr) return args[0].text;
  for (size_t i = 0; i + 2 < args.size(); ++i) {
    if (args[i].is_word(key) && args[i + 1].is('=')) return args[i + 2].text;
  }
  return "";
}

NexusDimensions ReadNexusDimensions(const NexusCommand& command) {
  NexusDimensions dimensions;
  const std::vector<NexusToken>& args = command.args;
  for (size_t i = 0; i < args.size(); ++i) {
    const bool ntax = args[i].is_word("NTAX");
    const bool nchar = args[i].is_word("NCHAR");
    if (!ntax && !nchar) continue;  // NEWTAXA and the like
    const int code = ntax ? kNexusNtax : kNexusNchar;
    if (i + 2 >= args.size() || !args[i + 1].is('=')) throw NexusFault(code);
    const std::string& text = args[i + 2].text;
    const int64_t limit = ntax ? kMaxSequences : kMaxSites;
    const std::optional<int64_t> value = WholeNumber(text, limit);
    if (!value && AllDigitsAbove(text, limit))
      throw NexusFault(kNexusCapacity,
                       ntax ? DeclaredSequencesSentence(text) : DeclaredSitesSentence(text));
    if (!value) throw NexusFault(code);
    (ntax ? dimensions.ntax : dimensions.nchar) = static_cast<int32_t>(*value);
    i += 2;
  }
  return dimensions;
}

std::string NexusCommandText(std::string_view text, const NexusCommand& command) {
  return std::string(text.substr(command.begin, command.end - command.begin));
}

}  // namespace ovelt
