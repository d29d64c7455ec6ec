#include "tools/calculator_keys.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <utility>

namespace ovelt {
namespace {

std::string Lower(std::string_view word) {
  std::string lower(word);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

std::optional<CalcKey> WordKey(std::string_view word) {
  static const std::array<std::pair<const char*, CalcFunction>, 7> kFunctions = {{
      {"a1", CalcFunction::kA1},
      {"a2", CalcFunction::kA2},
      {"1/x", CalcFunction::kReciprocal},
      {"jc", CalcFunction::kJukesCantor},
      {"ln", CalcFunction::kLn},
      {"sqrt", CalcFunction::kSquareRoot},
      {"x^2", CalcFunction::kSquare},
  }};
  const std::string lower = Lower(word);
  const std::string text(word);
  if (lower == "c") return CalcKey{CalcKeyKind::kCancel, 0, ' ', CalcFunction::kA1, text};
  if (lower == "ce") return CalcKey{CalcKeyKind::kCancelEntry, 0, ' ', CalcFunction::kA1, text};
  for (const auto& [name, function] : kFunctions)
    if (lower == name) return CalcKey{CalcKeyKind::kFunction, 0, ' ', function, text};
  return std::nullopt;
}

std::optional<CalcKey> CharacterKey(char c) {
  const std::string text(1, c);
  if (c >= '0' && c <= '9')
    return CalcKey{CalcKeyKind::kDigit, c - '0', ' ', CalcFunction::kA1, text};
  switch (c) {
    case '.':
    case ',':
      return CalcKey{CalcKeyKind::kPoint, 0, ' ', CalcFunction::kA1, text};
    case '+':
    case '-':
    case '/':
    case '=':
      return CalcKey{CalcKeyKind::kOperator, 0, c, CalcFunction::kA1, text};
    case 'X':
    case 'x':
    case '*':
      return CalcKey{CalcKeyKind::kOperator, 0, 'X', CalcFunction::kA1, text};
    case '%':
      return CalcKey{CalcKeyKind::kPercent, 0, ' ', CalcFunction::kA1, text};
    default:
      return std::nullopt;
  }
}

}  // namespace

CalcKeyParse ParseCalculatorKeys(std::string_view text) {
  CalcKeyParse parse;
  size_t i = 0;
  while (i < text.size()) {
    if (std::isspace(static_cast<unsigned char>(text[i])) != 0) {
      ++i;
      continue;
    }
    size_t end = i;
    while (end < text.size() && std::isspace(static_cast<unsigned char>(text[end])) == 0) ++end;
    const std::string_view word = text.substr(i, end - i);
    i = end;
    if (auto key = WordKey(word)) {
      parse.Keys.push_back(*key);
      continue;
    }
    std::vector<CalcKey> keys;
    for (const char c : word) {
      auto key = CharacterKey(c);
      if (!key) {
        parse.BadWord = std::string(word);
        parse.Keys.clear();
        return parse;
      }
      keys.push_back(*key);
    }
    parse.Keys.insert(parse.Keys.end(), keys.begin(), keys.end());
  }
  return parse;
}

CalcOutcome PressKey(Calculator& calculator, const CalcKey& key) {
  switch (key.Kind) {
    case CalcKeyKind::kDigit:
      calculator.Number(key.Digit);
      return std::nullopt;
    case CalcKeyKind::kPoint:
      calculator.Decimal();
      return std::nullopt;
    case CalcKeyKind::kOperator:
      return calculator.Operator(key.Op);
    case CalcKeyKind::kPercent:
      return calculator.Percent();
    case CalcKeyKind::kCancelEntry:
      calculator.CancelEntry();
      return std::nullopt;
    case CalcKeyKind::kCancel:
      calculator.Cancel();
      return std::nullopt;
    case CalcKeyKind::kFunction:
      return calculator.Function(key.Function);
  }
  return std::nullopt;
}

}  // namespace ovelt
