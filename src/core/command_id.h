#pragma once
// The numbers of the commands. `Analysis` holds one of them while the command runs; a two-set
// command (its dialog takes two data sets) carries 1000 more than its title code.

#include <cstdint>

namespace ovelt {

enum class CommandId : int16_t {
  kNone = 0,
  kPolymorphicSites = 1,
  kDnaPolymorphism = 2,
  kDnaDivergence = 1003,
  kLinkageDisequilibrium = 4,
  kTajima = 5,
  kGeneConversion = 1006,
  kRecombination = 7,
  kSynonymous = 8,
  kHka = 1009,
  kHkaDirect = 10,
  kFuLi = 11,
  kFuLiOutgroup = 1012,
  kMcDonaldKreitman = 1014,
  kSizeChanges = 15,
  kPolymorphismDivergence = 1016,
  kFunctionalRegions = 1017,
  kTrelmo = 1018,
  kCoalescent = 19,
  kHbk = 20,
  kPolymorphicSitesFile = 21,
  kReverseComplement = 22,
  kCodonUsage = 23,
  kIntraspecific = 24,
  kTranslate = 25,
  kRemovePositions = 26,
  kFilteredPositions = 1026,
  kGenBank = 27,
  kGeneFlow = 28,
  kPreferredCodons = 1029,
  kHaplotypeFile = 30,
  kMutationalInput = 1031,
  kConcatenate = 32,
  kMultiDomain = 33,
  kIndependence = 41,
  kDistributions = 42,
};

// The value `Analysis` holds while the command runs.
[[nodiscard]] constexpr int16_t Number(CommandId id) {
  return static_cast<int16_t>(id);
}

// The command's code without the 1000 of the two-set dialog: what the result code of the output
// channel holds. The only place where the 1000 is taken off.
[[nodiscard]] constexpr int16_t TitleCode(CommandId id) {
  return static_cast<int16_t>(Number(id) % 1000);
}
[[nodiscard]] constexpr int16_t TitleCode(int number) {
  return static_cast<int16_t>(number % 1000);
}

}  // namespace ovelt
