#include "core/set_name.h"

#include <algorithm>
#include <array>

#include "core/text_case.h"

namespace ovelt {

namespace {

const std::array<std::string, 13> kReservedWords = {
    "charset",      "standard",      "vector",        "stateset", "changeset",
    "taxset",       "treeset",       "charpartition", "tokens",   "taxpartition",
    "treepartition", "begin",        "end"};

}  // namespace

std::optional<char> FilterTypedKey(char key) {
  if (key == ' ') return '_';
  if (IsAsciiLetter(key) || IsAsciiDigit(key)) return key;
  return std::nullopt;
}

std::string FilterTypedName(const std::string& typed) {
  std::string name;
  for (const char key : typed) {
    if (const auto kept = FilterTypedKey(key)) name += *kept;
  }
  return name;
}

std::optional<std::string> ValidateSetName(const std::string& name,
                                           const std::vector<std::string>& names_in_use) {
  if (name.empty()) return std::string();
  const std::string lower = ToLowerAscii(name);
  const bool reserved =
      std::find(kReservedWords.begin(), kReservedWords.end(), lower) != kReservedWords.end();
  if (reserved || !(lower[0] >= 'a' && lower[0] <= 'z')) return kInvalidSetName;
  for (const auto& used : names_in_use) {
    if (ToLowerAscii(used) == lower) return kDuplicateSetName;
  }
  return std::nullopt;
}

std::optional<std::string> ValidateSetName(const std::string& name,
                                           const std::vector<PoblacionSecuencias>& sets) {
  std::vector<std::string> names;
  for (size_t i = 1; i < sets.size(); ++i) names.push_back(sets[i].nombre());
  return ValidateSetName(name, names);
}

}  // namespace ovelt
