#include "analyses/linkage/table_cells.h"

#include <charconv>
#include <cmath>

#include "output/format_mask.h"

namespace ovelt {

namespace {

constexpr const char* kMask = "0.000";

// `value` * 1000 rounded half away from zero, when the decimal digits that `Format` rounds
// cannot fall on the other side of the half: `slack` bounds the distance between the binary
// value and its shortened decimal, in thousandths.
bool QuickThousandths(double value, double slack, int64_t& out) {
  const double scaled = std::fabs(value) * 1000.0;
  if (!(scaled < 1e9)) return false;
  const double whole = std::floor(scaled);
  const double fraction = scaled - whole;
  if (std::fabs(fraction - 0.5) <= slack) return false;
  out = static_cast<int64_t>(whole) + (fraction > 0.5 ? 1 : 0);
  return true;
}

std::string FromThousandths(bool negative, int64_t thousandths) {
  std::string text = negative ? "-" : "";
  text += std::to_string(thousandths / 1000);
  const auto rest = static_cast<int>(thousandths % 1000);
  text += '.';
  text += static_cast<char>('0' + rest / 100);
  text += static_cast<char>('0' + rest / 10 % 10);
  text += static_cast<char>('0' + rest % 10);
  return text;
}

}  // namespace

std::string ThreeDecimals(double value) {
  int64_t thousandths = 0;
  // 15 significant digits move a value below 1e6 by less than 1e-9 in thousandths.
  if (!std::isfinite(value) || !QuickThousandths(value, 1e-6, thousandths))
    return Format(value, kMask);
  return FromThousandths(value < 0.0, thousandths);
}

std::string ThreeDecimals(float value) {
  int64_t thousandths = 0;
  const auto wide = static_cast<double>(value);
  // 7 significant digits move a value below 1000 by at most 5e-5 in thousandths; larger values
  // go the long way.
  if (!std::isfinite(wide) || std::fabs(wide) >= 1000.0 ||
      !QuickThousandths(wide, 1e-3, thousandths))
    return Format(value, kMask);
  return FromThousandths(wide < 0.0, thousandths);
}

namespace {

// Appends "[-]units.ddd" of a count of thousandths.
void AppendThousandths(std::string& line, bool negative, int64_t thousandths) {
  char buffer[32];
  char* at = buffer;
  if (negative) *at++ = '-';
  at = std::to_chars(at, buffer + sizeof buffer - 4, thousandths / 1000).ptr;
  const auto rest = static_cast<int>(thousandths % 1000);
  *at++ = '.';
  *at++ = static_cast<char>('0' + rest / 100);
  *at++ = static_cast<char>('0' + rest / 10 % 10);
  *at++ = static_cast<char>('0' + rest % 10);
  line.append(buffer, at);
}

}  // namespace

void AppendThreeDecimals(std::string& line, double value, bool signed_blank) {
  int64_t thousandths = 0;
  if (!std::isfinite(value) || !QuickThousandths(value, 1e-6, thousandths)) {
    const std::string text = Format(value, kMask);
    if (signed_blank && text.front() != '-') line += ' ';
    line += text;
    return;
  }
  if (signed_blank && value >= 0.0) line += ' ';
  AppendThousandths(line, value < 0.0, thousandths);
}

void AppendThreeDecimals(std::string& line, float value) { line += ThreeDecimals(value); }

void AppendRightAlignedFive(std::string& line, int32_t value) {
  char buffer[16];
  const char* end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  const auto length = static_cast<size_t>(end - buffer);
  if (length < 5) line.append(5 - length, ' ');
  line.append(buffer, length);
}

std::string RightAlignedFive(int32_t value) {
  std::string text = std::to_string(value);
  if (text.size() < 5) text.insert(0, 5 - text.size(), ' ');
  return text;
}

}  // namespace ovelt
