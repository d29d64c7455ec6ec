#include "output/date_mask.h"

#include <array>
#include <cctype>
#include <vector>

namespace ovelt {
namespace {

constexpr std::array<const char*, 12> kMonthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<const char*, 7> kWeekdayNames = {
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

struct Token {
  char Letter = 0;  // 0 for literal text
  int Count = 0;
  std::string Literal;
};

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DayOfYear(const Platform::DateTime& when) {
  static constexpr std::array<int, 12> kDaysBefore = {0,   31,  59,  90,  120, 151,
                                                      181, 212, 243, 273, 304, 334};
  if (when.month < 1 || when.month > 12) return when.day;
  const int leap = (when.month > 2 && IsLeapYear(when.year)) ? 1 : 0;
  return kDaysBefore[static_cast<size_t>(when.month - 1)] + when.day + leap;
}

// 0 for Sunday (Sakamoto's method for the Gregorian calendar).
int Weekday(const Platform::DateTime& when) {
  static constexpr std::array<int, 12> kOffsets = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
  if (when.month < 1 || when.month > 12) return 0;
  int year = when.year;
  if (when.month < 3) --year;
  const int sum = year + year / 4 - year / 100 + year / 400 +
                  kOffsets[static_cast<size_t>(when.month - 1)] + when.day;
  return ((sum % 7) + 7) % 7;
}

std::string TwoDigits(int value) {
  std::string text = std::to_string(value);
  return text.size() < 2 ? "0" + text : text;
}

std::string MonthName(int month) {
  return (month >= 1 && month <= 12) ? kMonthNames[static_cast<size_t>(month - 1)] : "";
}

std::optional<std::vector<Token>> Tokenize(std::string_view mask) {
  std::vector<Token> tokens;
  size_t i = 0;
  while (i < mask.size()) {
    const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(mask[i])));
    if (std::isalpha(static_cast<unsigned char>(c))) {
      static constexpr std::string_view kLetters = "dmyhns";
      if (kLetters.find(c) == std::string_view::npos) return std::nullopt;
      Token token{c, 0, ""};
      while (i < mask.size() &&
             std::tolower(static_cast<unsigned char>(mask[i])) == static_cast<unsigned char>(c)) {
        ++token.Count;
        ++i;
      }
      tokens.push_back(token);
    } else {
      if (tokens.empty() || tokens.back().Letter != 0) tokens.push_back(Token{});
      tokens.back().Literal.push_back(mask[i]);
      ++i;
    }
  }
  return tokens;
}

// The letter token before / after position i, skipping literal text.
char NeighbourLetter(const std::vector<Token>& tokens, size_t i, int direction) {
  for (auto j = static_cast<long>(i) + direction; j >= 0 && j < static_cast<long>(tokens.size());
       j += direction) {
    if (tokens[static_cast<size_t>(j)].Letter != 0) return tokens[static_cast<size_t>(j)].Letter;
  }
  return 0;
}

std::optional<std::string> TokenText(const Token& token, bool minutes,
                                     const Platform::DateTime& when) {
  const int n = token.Count;
  switch (token.Letter) {
    case 'd':
      if (n == 1) return std::to_string(when.day);
      if (n == 2) return TwoDigits(when.day);
      if (n == 3) return std::string(kWeekdayNames[static_cast<size_t>(Weekday(when))]).substr(0, 3);
      if (n == 4) return std::string(kWeekdayNames[static_cast<size_t>(Weekday(when))]);
      return std::nullopt;
    case 'm':
      if (minutes && n <= 2) return n == 1 ? std::to_string(when.minute) : TwoDigits(when.minute);
      if (n == 1) return std::to_string(when.month);
      if (n == 2) return TwoDigits(when.month);
      if (n == 3) return MonthName(when.month).substr(0, 3);
      if (n == 4) return MonthName(when.month);
      return std::nullopt;
    case 'y':
      if (n == 1) return std::to_string(DayOfYear(when));
      if (n == 2) return TwoDigits(((when.year % 100) + 100) % 100);
      if (n == 4) return std::to_string(when.year);
      return std::nullopt;
    case 'h':
      if (n <= 2) return n == 1 ? std::to_string(when.hour) : TwoDigits(when.hour);
      return std::nullopt;
    case 'n':
      if (n <= 2) return n == 1 ? std::to_string(when.minute) : TwoDigits(when.minute);
      return std::nullopt;
    case 's':
      if (n <= 2) return n == 1 ? std::to_string(when.second) : TwoDigits(when.second);
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> ApplyDateMask(const Platform::DateTime& when, std::string_view mask) {
  const auto tokens = Tokenize(mask);
  if (!tokens) return std::nullopt;
  std::string text;
  bool any_letter = false;
  for (size_t i = 0; i < tokens->size(); ++i) {
    const Token& token = (*tokens)[i];
    if (token.Letter == 0) {
      text += token.Literal;
      continue;
    }
    any_letter = true;
    const bool minutes = token.Letter == 'm' &&
                         (NeighbourLetter(*tokens, i, -1) == 'h' || NeighbourLetter(*tokens, i, +1) == 's');
    const auto part = TokenText(token, minutes, when);
    if (!part) return std::nullopt;
    text += *part;
  }
  if (!any_letter) return std::nullopt;
  return text;
}

}  // namespace ovelt
