#include "formats/nexus_writer_options.h"

#include <string_view>

namespace ovelt {
bool BlockedInSymbol(char c) {
  constexpr std::string_view kBlocked = "()[]{}/\\,;:=*'`<>AUTCGautcg";
  return kBlocked.find(c) != std::string_view::npos;
}

namespace {

bool IsBlankSymbol(const std::string& typed) {
  const std::string symbol = TypedSymbol(typed);
  return symbol.empty() || symbol == " " || symbol == "\t";
}

}  // namespace

NexusSaveOptions NexusSaveOptionsFrom(const FormatAttributes& f) {
  NexusSaveOptions o;
  o.NexusVersion = f.NexusVersion == 1 ? int16_t{1} : int16_t{2};
  o.LineDelimiter = f.LineDelimiter >= 1 && f.LineDelimiter <= 3 ? f.LineDelimiter : int16_t{1};
  o.MatchSymbolOn = f.MatchSymbolOn == 1;
  o.MatchSymbol = std::string(1, f.MatchSymbol);
  o.MissingSymbol = std::string(1, f.MissingSymbol);
  o.GapSymbol = std::string(1, f.GapSymbol);
  o.Interleaved = f.Interleaved == 1;
  o.BlockLength = f.BlockLength;
  return o;
}

NexusSaveOptions DefaultNexusSaveOptions() { return NexusSaveOptionsFrom(FormatAttributes{}); }

std::string TypedSymbol(const std::string& typed) {
  for (char c : typed) {
    if (!BlockedInSymbol(c)) return std::string(1, c);
  }
  return "";
}

std::optional<OptionRefusal> ValidateNexusSaveOptions(const NexusSaveOptions& o) {
  if (IsBlankSymbol(o.MatchSymbol) || IsBlankSymbol(o.MissingSymbol) || IsBlankSymbol(o.GapSymbol))
    return OptionRefusal{kBlankSymbolText, kBlankSymbolTitle};
  if (o.BlockLength < 1) return OptionRefusal{kBlockTooShort};
  NexusSaveOptions ranges = o;
  if (auto failure = CheckOptionRanges(ranges)) return OptionRefusal{*failure};
  return std::nullopt;
}

void ApplyNexusSaveOptions(const NexusSaveOptions& o, FormatAttributes& f) {
  f.NexusVersion = o.NexusVersion;
  f.LineDelimiter = o.LineDelimiter;
  f.MatchSymbolOn = o.MatchSymbolOn ? 1 : 0;
  f.MatchSymbol = TypedSymbol(o.MatchSymbol)[0];
  f.MissingSymbol = TypedSymbol(o.MissingSymbol)[0];
  f.GapSymbol = TypedSymbol(o.GapSymbol)[0];
  f.Interleaved = o.Interleaved ? 1 : 0;
  f.BlockLength = o.BlockLength;
}

}  // namespace ovelt
