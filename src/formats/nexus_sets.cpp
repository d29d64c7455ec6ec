// The SETS block: TAXSET statements become sequence sets, CHARSET statements domains.

#include <algorithm>
#include <map>

#include "core/text_case.h"
#include "formats/nexus_errors.h"
#include "formats/nexus_parts.h"

namespace ovelt {

namespace {

struct SetHead {
  std::string name;
  size_t items_from = 0;  // index of the first list item
};

// "[*] name [(format)] =": the name and where the list begins. "(VECTOR)" is refused with
// `vector_code`; any other fault is `syntax_code`.
SetHead ReadSetHead(const std::vector<NexusToken>& args, int syntax_code, int vector_code) {
  size_t i = 0;
  if (i < args.size() && args[i].is('*')) ++i;
  if (i >= args.size() ||
      (args[i].type != NexusToken::kWord && args[i].type != NexusToken::kQuoted))
    throw NexusFault(syntax_code);
  SetHead head;
  head.name = args[i].text;
  // A set name keeps no blanks: the sets dialog and the writer take it as one word.
  for (char& c : head.name) {
    if (c == ' ') c = '_';
  }
  ++i;
  if (i < args.size() && args[i].is('(')) {
    for (++i; i < args.size() && !args[i].is(')'); ++i) {
      if (args[i].is_word("VECTOR")) throw NexusFault(vector_code);
    }
    if (i >= args.size()) throw NexusFault(syntax_code);
    ++i;
  }
  if (i >= args.size() || !args[i].is('=')) throw NexusFault(syntax_code);
  head.items_from = i + 1;
  return head;
}

// Members of the keyed names: labels first, then sets read before.
using NamedMembers = std::map<std::string, std::vector<int32_t>>;

NexusListContext ContextOf(int32_t last, const std::unordered_map<std::string, int32_t>& labels,
                           const NamedMembers& sets) {
  NexusListContext context;
  context.last = last;
  context.lookup = [&labels, &sets](const std::string& key)
      -> std::optional<std::vector<int32_t>> {
    if (key.empty()) return std::nullopt;
    if (auto it = labels.find(key); it != labels.end()) return std::vector<int32_t>{it->second};
    if (auto it = sets.find(key); it != sets.end()) return it->second;
    return std::nullopt;
  };
  return context;
}

}  // namespace

void NexusNames::Index() {
  taxon_numbers.clear();
  char_numbers.clear();
  for (size_t n = 1; n < taxon_keys.size(); ++n)
    if (!taxon_keys[n].empty()) taxon_numbers.emplace(taxon_keys[n], static_cast<int32_t>(n));
  for (size_t n = 1; n < char_keys.size(); ++n)
    if (!char_keys[n].empty()) char_numbers.emplace(char_keys[n], static_cast<int32_t>(n));
}

void ReadSetsBlock(const NexusRawBlock& block, const NexusNames& names, NexusExtras& extras,
                   std::vector<std::string>& kept, std::string_view text) {
  NamedMembers taxsets;
  NamedMembers charsets;
  for (const NexusCommand& command : block.commands) {
    const bool taxset = command.name == "TAXSET";
    const bool charset = command.name == "CHARSET";
    if (!taxset && !charset) {
      kept.push_back(NexusCommandText(text, command));
      continue;
    }
    const int item_code = taxset ? kNexusTaxSetNumber : kNexusCharSetNumber;
    const SetHead head = ReadSetHead(command.args, kNexusSetsBlock, kNexusVector);
    const std::string key = NexusNameKey(head.name);
    if (taxset) {
      const NexusListContext context = ContextOf(names.ntax, names.taxon_numbers, taxsets);
      const std::vector<int32_t> members =
          ReadNexusList(command.args, head.items_from, command.args.size(), context, item_code);
      PoblacionSecuencias set;
      set.nombrePop(head.name);
      set.activePop(1);
      for (int32_t n : members) set.secuenciaPop(static_cast<int32_t>(set.max()) + 1, n);
      // A set of the same name is defined again: the later definition holds.
      auto same = std::find_if(extras.SequenceSets.begin(), extras.SequenceSets.end(),
                               [&key](const PoblacionSecuencias& s) {
                                 return NexusNameKey(s.nombre()) == key;
                               });
      if (same != extras.SequenceSets.end()) {
        *same = set;
      } else {
        extras.SequenceSets.push_back(set);
      }
      taxsets[key] = members;
    } else {
      const NexusListContext context = ContextOf(names.nchar, names.char_numbers, charsets);
      std::vector<int32_t> sites =
          ReadNexusList(command.args, head.items_from, command.args.size(), context, item_code);
      charsets[key] = sites;
      std::sort(sites.begin(), sites.end());
      DomainSet domain{head.name, sites};
      auto same = std::find_if(extras.Domains.begin(), extras.Domains.end(),
                               [&key](const DomainSet& d) { return NexusNameKey(d.Name) == key; });
      if (same != extras.Domains.end()) {
        *same = domain;
      } else {
        extras.Domains.push_back(domain);
      }
    }
  }
}

}  // namespace ovelt
