#pragma once
// The statistics a coalescent run can simulate, in the order of the dialog's list, each with its
// code, its name, its symbol in the results, its command-line name and the range outside which
// a typed observed value goes back to 0. 1000 is added to the code when the number of
// segregating sites is given instead of theta.

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace ovelt {

inline constexpr int16_t kGivenSegSitesOffset = 1000;

enum StatisticCodeValue : int16_t {
  kCodeTajimaD = 0,
  kCodeRaggedness = 1,
  kCodePi = 2,
  kCodeThetaW = 3,
  kCodeHd = 4,
  kCodeFs = 5,
  kCodeZnS = 6,
  kCodeRm = 9,
  kCodeHaplotypes = 10,
  kCodeZa = 11,
  kCodeFuLiDStar = 12,
  kCodeFuLiFStar = 13,
  kCodeFuLiD = 14,
  kCodeFuLiF = 15,
  kCodeR2 = 16,
  kCodeZZ = 17,
  kCodeFayWuH = 18,
  kCodeWallB = 19,
  kCodeWallQ = 20,
};

struct StatisticEntry {
  int16_t Code;
  const char* Name;     // as the list shows it
  const char* Symbol;   // in "Average value of <symbol>:"
  const char* CliName;  // kebab-case name of the command line
  double ObservedLow = -std::numeric_limits<double>::infinity();
  double ObservedHigh = std::numeric_limits<double>::infinity();
};

// The 19 statistics in list order.
[[nodiscard]] const std::vector<StatisticEntry>& StatisticList();
// The entry of a code (with or without the 1000); nullptr when there is none.
[[nodiscard]] const StatisticEntry* FindStatistic(int code);
[[nodiscard]] const StatisticEntry* FindStatisticByCliName(const std::string& name);

// What a code needs of a replicate (code without the 1000).
[[nodiscard]] bool NeedsHaplotypeMatrix(int code);
[[nodiscard]] bool NeedsPairTable(int code);
[[nodiscard]] bool NeedsSiteOrder(int code);
[[nodiscard]] bool NeedsMajorFlip(int code);

}  // namespace ovelt
