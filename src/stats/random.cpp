#include "stats/random.h"

#include "stats/stats_error.h"

namespace ovelt {
namespace {

constexpr int32_t kModulus1 = 259200, kMultiplier1 = 7141, kIncrement1 = 54773;
constexpr int32_t kModulus2 = 134456, kMultiplier2 = 8121, kIncrement2 = 28411;
constexpr int32_t kModulus3 = 243000, kMultiplier3 = 4561, kIncrement3 = 51349;
// 1/259200 and 1/134456 to eight digits, as the stream has always used them.
constexpr double kReciprocal1 = 3.8580247e-06;
constexpr double kReciprocal2 = 7.4373773e-06;
constexpr double kBelowOne = 0.999999999999;

// Each state lies in 0 .. modulus - 1, so multiplier * state + increment stays below
// 7141 * 259199 + 54773 < 2^31.
int32_t Step1(int32_t ix) { return (kMultiplier1 * ix + kIncrement1) % kModulus1; }
int32_t Step2(int32_t ix) { return (kMultiplier2 * ix + kIncrement2) % kModulus2; }
int32_t Step3(int32_t ix) { return (kMultiplier3 * ix + kIncrement3) % kModulus3; }

double Combine(int32_t ix1, int32_t ix2) { return (ix1 + ix2 * kReciprocal2) * kReciprocal1; }

void Initialise(int32_t& seed, RandomState& s) {
  const int64_t start = (int64_t{kIncrement1} - seed) % kModulus1;
  if (start < 0) throw StatsError(kInvalidArgumentText);
  s.Initialised = 1;
  s.Ix1 = Step1(static_cast<int32_t>(start));
  s.Ix2 = s.Ix1 % kModulus2;
  s.Ix1 = Step1(s.Ix1);
  s.Ix3 = s.Ix1 % kModulus3;
  for (size_t j = 1; j <= 97; ++j) {
    s.Ix1 = Step1(s.Ix1);
    s.Ix2 = Step2(s.Ix2);
    s.Table[j] = Combine(s.Ix1, s.Ix2);
  }
  seed = 1;
}

}  // namespace

double Ran(int32_t& seed, RandomState& state) {
  if (seed < 0 || state.Initialised == 0) Initialise(seed, state);
  state.Ix1 = Step1(state.Ix1);
  state.Ix2 = Step2(state.Ix2);
  state.Ix3 = Step3(state.Ix3);
  const int64_t j = 1 + (int64_t{97} * state.Ix3) / kModulus3;
  // Only a state altered from outside can point beyond the table.
  if (j < 1 || j > 97) throw StatsError(kSubscriptOutOfRangeText);
  double r = state.Table[static_cast<size_t>(j)];
  // The eight-digit reciprocals can carry a value just past 1.
  if (r >= 1.0) r = kBelowOne;
  state.Table[static_cast<size_t>(j)] = Combine(state.Ix1, state.Ix2);
  return r;
}

}  // namespace ovelt
