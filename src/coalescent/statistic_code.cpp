#include "coalescent/statistic_code.h"

namespace ovelt {

const std::vector<StatisticEntry>& StatisticList() {
  static const std::vector<StatisticEntry> list = {
      {kCodeHd, "Haplotype Diversity, Hd", "Hd", "hd", 0.0, 1.0},
      {kCodeHaplotypes, "Number of Haplotypes, h", "h", "h", 0.0},
      {kCodePi, "Nucleotide Diversity, Pi", "Pi", "pi", 0.0},
      {kCodeThetaW, "Theta-W (from S)", "Theta", "theta-w", 0.0},
      {kCodeZnS, "Linkage Disequilibrium, ZnS", "ZnS", "zns", 0.0, 1.0},
      {kCodeZa, "Linkage Disequilibrium, Za", "Za", "za", 0.0, 1.0},
      {kCodeZZ, "Linkage Disequilibrium, ZZ", "ZZ", "zz", -std::numeric_limits<double>::infinity(),
       1.0},
      {kCodeRm, "Recombination, Rm", "Rm", "rm", 0.0},
      {kCodeTajimaD, "Tajima's D", "D", "tajima-d"},
      {kCodeFuLiDStar, "Fu and Li's D*", "D*", "fu-li-d-star"},
      {kCodeFuLiFStar, "Fu and Li's F*", "F*", "fu-li-f-star"},
      {kCodeFuLiD, "Fu and Li's D", "D", "fu-li-d"},
      {kCodeFuLiF, "Fu and Li's F", "F", "fu-li-f"},
      {kCodeFs, "Fu's Fs", "Fs", "fs"},
      {kCodeFayWuH, "Fay and Wu's H", "H", "fay-wu-h"},
      {kCodeRaggedness, "Raggedness, r", "r", "raggedness", 0.0, 2.0},
      {kCodeWallB, "Wall's B", "B", "wall-b", 0.0},
      {kCodeWallQ, "Wall's Q", "Q", "wall-q", 0.0},
      {kCodeR2, "Corvel and Valdor's R2", "R2", "r2", 0.0},
  };
  return list;
}

const StatisticEntry* FindStatistic(int code) {
  for (const StatisticEntry& e : StatisticList())
    if (e.Code == code % kGivenSegSitesOffset) return &e;
  return nullptr;
}

const StatisticEntry* FindStatisticByCliName(const std::string& name) {
  for (const StatisticEntry& e : StatisticList())
    if (name == e.CliName) return &e;
  return nullptr;
}

bool NeedsHaplotypeMatrix(int code) { return (code >= 6 && code <= 9) || (code >= 11 && code <= 21); }

bool NeedsPairTable(int code) {
  return code == kCodeRaggedness || code == kCodeHd || code == kCodeFs || code == kCodeHaplotypes;
}

bool NeedsSiteOrder(int code) {
  return code == 8 || code == kCodeZa || code == kCodeZZ || code == kCodeWallB ||
         code == kCodeWallQ;
}

bool NeedsMajorFlip(int code) { return code == kCodeZnS || code == kCodeZa || code == kCodeZZ; }

}  // namespace ovelt
