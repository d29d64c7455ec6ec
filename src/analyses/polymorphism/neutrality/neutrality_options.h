#pragma once
// The options of the neutrality tests: Tajima's test and Fu and Li's tests share one dialog
// (region, sequence set, sliding window); the tests with an outgroup take a second set, the
// outgroup, through `Form11b`. Whether the statistics count mutations or segregating sites is the
// data setting `UseMutations`.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/command_options.h"

namespace ovelt {

namespace neutrality_detail {
template <class V>
void VisitWindow(V& v, bool& sliding_on, int32_t& window_length, int32_t& step_size,
                 const char* statistic) {
  constexpr int64_t kMaxSites = std::numeric_limits<int32_t>::max();
  v.Flag(sliding_on,
         {"sliding-window", "Sliding Window", std::string(statistic) + " along a sliding window"});
  v.Integer(window_length,
            {"window", "Window Length:",
             "Window length in sites (0: 100, or half the sites of a file under 100 sites)"},
            0, kMaxSites);
  v.Integer(step_size,
            {"step", "Step Size:",
             "Step size in sites (0: 25, or an eighth of the sites of a file under 100)"},
            0, kMaxSites);
}
}  // namespace neutrality_detail

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
    neutrality_detail::VisitWindow(v, SlidingOn, WindowLength, StepSize, "The statistics");
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
    neutrality_detail::VisitWindow(v, SlidingOn, WindowLength, StepSize, "The statistics");
  }
};

// The window of a run: the options' length and step, the file's defaults for those left at 0.
[[nodiscard]] SlidingWindowSpec NeutralityWindow(int32_t window_length, int32_t step_size,
                                                 int32_t num_sites, bool gaps_in_window);

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
