#include "formats/mega_dialog_check.h"

#include <string_view>

#include "formats/nexus_writer_options.h"

namespace ovelt {

namespace {

bool OneSymbol(const std::string& text) {
  return text.size() == 1 && text[0] != ' ' && text[0] != '\t';
}

bool IsNucleotideLetter(char c) {
  return std::string_view("ACGTUacgtu").find(c) != std::string_view::npos;
}

}  // namespace

std::optional<MegaSymbolRefusal> CheckMegaSymbols(const std::string& match, const std::string& gap,
                                                  const std::string& missing) {
  if (!OneSymbol(match) || !OneSymbol(gap) || !OneSymbol(missing))
    return MegaSymbolRefusal{kMissingSymbolText};
  for (const auto& [label, symbol] : {std::pair{"Matching Symbol", match[0]},
                                      std::pair{"Gap Symbol", gap[0]},
                                      std::pair{"Missing Symbol", missing[0]}}) {
    const std::string quoted = std::string("'") + symbol + "'";
    if (IsNucleotideLetter(symbol))
      return MegaSymbolRefusal{std::string("The ") + label + " can not be a nucleotide: " + quoted};
    if (BlockedInSymbol(symbol))
      return MegaSymbolRefusal{std::string("The ") + label + " can not be " + quoted +
                               ": NEXUS reserves it"};
  }
  return std::nullopt;
}

}  // namespace ovelt
