// Taxon and character labels.

#include "core/text_case.h"
#include "formats/nexus_errors.h"
#include "formats/nexus_parts.h"

namespace ovelt {

namespace {

bool IsName(const NexusToken& token) {
  return token.type == NexusToken::kWord || token.type == NexusToken::kQuoted;
}

int32_t LabelNumber(const NexusToken& token, int32_t nchar) {
  if (token.type != NexusToken::kWord || token.text.empty() || token.text.size() > 10)
    throw NexusFault(kNexusCharLabels);
  int64_t value = 0;
  for (char c : token.text) {
    if (!IsAsciiDigit(c)) throw NexusFault(kNexusCharLabels);
    value = value * 10 + (c - '0');
  }
  if (value < 1 || value > nchar) throw NexusFault(kNexusCharLabels);
  return static_cast<int32_t>(value);
}

}  // namespace

std::vector<NexusToken> ReadTaxLabels(const NexusCommand& command) {
  std::vector<NexusToken> labels;
  for (const NexusToken& token : command.args) {
    if (IsName(token)) labels.push_back(token);
  }
  return labels;
}

void ReadCharLabels(const NexusCommand& command, int32_t nchar, std::vector<std::string>& labels) {
  labels.resize(static_cast<size_t>(nchar) + 1);
  const std::vector<NexusToken>& args = command.args;
  bool numbered = command.name == "CHARSTATELABELS";
  for (const NexusToken& token : args) numbered = numbered || token.is(',');
  if (!numbered) {
    // CHARLABELS: one label per character, in order.
    int32_t site = 0;
    for (const NexusToken& token : args) {
      if (!IsName(token)) continue;
      if (++site > nchar) throw NexusFault(kNexusCharLabels);
      labels[static_cast<size_t>(site)] = NexusNameKey(NexusNameText(token));
    }
    return;
  }
  // "number name [/ states]" entries separated by ",".
  size_t i = 0;
  while (i < args.size()) {
    const int32_t site = LabelNumber(args[i], nchar);
    ++i;
    if (i < args.size() && IsName(args[i])) {
      labels[static_cast<size_t>(site)] = NexusNameKey(NexusNameText(args[i]));
      ++i;
    }
    while (i < args.size() && !args[i].is(',')) ++i;  // the state names
    if (i < args.size()) ++i;
  }
}

}  // namespace ovelt
