#include "core/set_definition.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "core/set_name.h"
#include "core/text_case.h"

namespace ovelt {

namespace {

// A whole number of at most nine digits; nullopt for anything else.
std::optional<int32_t> ParseNumber(const std::string& text) {
  if (text.empty() || text.size() > 9) return std::nullopt;
  int32_t value = 0;
  for (const char c : text) {
    if (!IsAsciiDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

std::vector<std::string> SplitItems(const std::string& list) {
  std::vector<std::string> items;
  size_t start = 0;
  while (true) {
    const size_t comma = list.find(',', start);
    items.push_back(TrimBlanks(list.substr(start, comma - start)));
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return items;
}

ParsedSetDefinition Fail(ParsedSetDefinition parsed, std::string error) {
  parsed.members.clear();
  parsed.error = std::move(error);
  return parsed;
}

}  // namespace

ParsedSequenceList ParseSequenceList(const std::string& list, int32_t total_seqs,
                                     const std::string& where) {
  ParsedSequenceList parsed;
  auto fail = [&parsed](std::string error) {
    parsed.members.clear();
    parsed.error = std::move(error);
    return parsed;
  };
  for (const std::string& item : SplitItems(list)) {
    if (item.empty()) return fail("Missing sequence number" + where);
    const size_t dash = item.find('-');
    const auto from = ParseNumber(TrimBlanks(item.substr(0, dash)));
    const auto to = dash == std::string::npos ? from : ParseNumber(TrimBlanks(item.substr(dash + 1)));
    if (!from || !to) return fail("Invalid sequence number \"" + item + "\"" + where);
    if (*from > *to) return fail("Invalid range \"" + item + "\"" + where);
    for (const int32_t number : {*from, *to}) {
      if (number < 1 || number > total_seqs) {
        return fail("Sequence number " + std::to_string(number) + where +
                    " is out of range: the data file has " + std::to_string(total_seqs) +
                    " sequences");
      }
    }
    for (int32_t seq = *from; seq <= *to; ++seq) {
      if (std::find(parsed.members.begin(), parsed.members.end(), seq) == parsed.members.end()) {
        parsed.members.push_back(seq);
      }
    }
  }
  return parsed;
}

ParsedSetDefinition ParseSetDefinition(const std::string& text, int32_t total_seqs) {
  ParsedSetDefinition parsed;
  const size_t equals = text.find('=');
  if (equals == std::string::npos) {
    return Fail(parsed, "Invalid sequence set definition \"" + text +
                            "\": write NAME=LIST, for example Pop1=1-5,8");
  }
  parsed.name = TrimBlanks(text.substr(0, equals));
  const std::string& name = parsed.name;
  const bool plain = std::all_of(name.begin(), name.end(), [](char c) {
    return IsAsciiLetter(c) || IsAsciiDigit(c) || c == '_';
  });
  if (name.empty() || !plain) return Fail(parsed, kInvalidSetName);
  if (auto refusal = ValidateSetName(name, std::vector<std::string>{})) {
    return Fail(parsed, *refusal);
  }

  ParsedSequenceList list =
      ParseSequenceList(text.substr(equals + 1), total_seqs, " in the definition of sequence set " + name);
  if (!list.ok()) return Fail(parsed, list.error);
  parsed.members = std::move(list.members);
  return parsed;
}

std::optional<std::string> AddSequenceSet(ActiveData& ad, const std::string& name,
                                          const std::vector<int32_t>& members) {
  if (auto refusal = ValidateSetName(name, ad.SequenceSets)) return refusal;
  PoblacionSecuencias set;
  set.nombrePop(name);
  set.activePop(1);
  int32_t index = 0;
  for (const int32_t member : members) set.secuenciaPop(++index, static_cast<double>(member));
  ad.SequenceSets.push_back(std::move(set));
  return std::nullopt;
}

}  // namespace ovelt
