#include "output/graph_scale.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace ovelt {

namespace {

constexpr int kLowestDecade = -5;  // 0.00001
constexpr int kHighestDecade = 4;  // 10000

// The step d x 10^decade as its decimal text: "0.0000" d ... "0." d, d, d "0" ... d "0000".
std::string StepText(int digit, int decade) {
  const std::string d(1, static_cast<char>('0' + digit));
  if (decade < 0) return "0." + std::string(static_cast<size_t>(-decade - 1), '0') + d;
  return d + std::string(static_cast<size_t>(decade), '0');
}

// Number of decimal digits `w` wipes out of the first X value.
int RoundedDigits(int64_t w) {
  if (w < 100) return 1;
  if (w < 2500) return 2;
  return 3;
}

}  // namespace

float RawYStep(double range) { return static_cast<float>(range / 5.0); }

double YStep(float raw) {
  if (!(raw > static_cast<float>(kSmallestYStep))) return kSmallestYStep;
  // The float's leading digit and decade, read from its decimal text (7 significant digits,
  // as many as a float holds), so that a float of 0.02 counts as 0.02 and not 0.0199999.
  char text[32];
  std::snprintf(text, sizeof text, "%.6e", static_cast<double>(raw));
  int digit = text[0] - '0';
  int decade = std::atoi(text + 9);
  if (decade > kHighestDecade) {
    // From 10000 up the decade stays 10000 and the digit is the whole quotient.
    decade = kHighestDecade;
    digit = static_cast<int>(std::min(9.0, std::floor(static_cast<double>(raw) / 10000.0)));
  }
  if (decade < kLowestDecade) return kSmallestYStep;
  if (digit > 2) digit = 5;
  if (digit == 0) digit = 1;
  return std::strtod(StepText(digit, decade).c_str(), nullptr);
}

double YStepForRange(double range) { return YStep(RawYStep(range)); }

int LabelEvery(int64_t c) {
  if (c <= 5) return 1;
  if (c <= 10) return 2;
  return 3;
}

int64_t FirstXTick(int64_t first, int64_t last) {
  const int64_t w = last - first + 1;
  const int digits = RoundedDigits(w);
  std::string text = std::to_string(first);
  const bool negative = !text.empty() && text[0] == '-';
  const size_t length = text.size() - (negative ? 1 : 0);
  if (length < static_cast<size_t>(digits)) return 0;
  for (size_t i = text.size() - static_cast<size_t>(digits); i < text.size(); ++i) text[i] = '0';
  return std::strtoll(text.c_str(), nullptr, 10);
}

int64_t XTickStep(int64_t first, int64_t last) {
  const auto step = std::llround(YStepForRange(static_cast<double>(last - first)));
  return std::max<int64_t>(1, step);
}

}  // namespace ovelt
