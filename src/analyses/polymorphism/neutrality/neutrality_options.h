#pragma once
// The options of the neutrality tests: Tajima's test and Fu and Li's tests share one dialog
// (region, sequence set, sliding window); the tests with an outgroup take a second set, the
// outgroup, through `Form11b`. Whether the statistics count mutations or segregating sites is the
// data setting `UseMutations`.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "analyses/polymorphism/windows/window_options.h"
#include "core/command_options.h"

namespace ovelt {

// Tajima's test and Fu and Li's tests.
struct NeutralityOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  int16_t SelSet1 = 0;
  bool SlidingOn = false;
  int32_t WindowLength = 0;  // 0: the dialog's default for the file
  int32_t StepSize = 0;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use (default: all included)"});
    VisitWindowFields(v, SlidingOn, WindowLength, StepSize, "The statistics");
  }
};

// Fu and Li's tests with an outgroup, and Fay and Wu's H.
struct FuLiOutgroupOptions {
  int32_t RegionFrom = 1, RegionTo = 0;
  int16_t SelSet1 = 1;  // the intraspecific data
  int16_t SelSet2 = 2;  // the outgroup
  bool SlidingOn = false;
  int32_t WindowLength = 0;
  int32_t StepSize = 0;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Intraspecific Data:", "Sequence set of the intraspecific data"});
    v.SetIndex(SelSet2, {"outgroup", "Outgroup:", "Sequence set of the outgroup"});
    VisitWindowFields(v, SlidingOn, WindowLength, StepSize, "The statistics");
  }
};

// The dialog's checks on OK, in their order: the ranges of the fields, the window (when on),
// then the region; with an outgroup, first that it is another set than the intraspecific data.
// The message of the first failure ("\n" between lines) and why.
[[nodiscard]] std::optional<SelectionRefusal> ValidateNeutralityOptions(
    NeutralityOptions options, int32_t num_sites, bool gaps_in_window);
[[nodiscard]] std::optional<SelectionRefusal> ValidateFuLiOutgroupOptions(
    FuLiOutgroupOptions options, int32_t num_sites, bool gaps_in_window);

inline constexpr const char* kSameSetTwice =
    "The Intraspecific Data and the Outgroup must be two different Sequence Sets.";

}  // namespace ovelt
