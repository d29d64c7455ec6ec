#pragma once
// Geometry of a sliding window along a region: where each window starts and ends, how many net
// sites (sites without gaps or missing data) it holds and where its midpoint lies. With
// `GapsInWindow` false the gap sites (class 5) do not count in the length and the step, so
// that every window holds the same net number of nucleotides; with it true they count.
// The drivers of the statistics (Pi and Theta, neutrality tests, divergence, ...) all walk the
// windows given here and differ only in what they compute per window.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/region_check.h"

namespace ovelt {

struct SlidingWindowSpec {
  int32_t WindowLength = 100;
  int32_t StepSize = 25;
  bool GapsInWindow = false;

  template <class V>
  void Visit(V& v) const {
    v.Integer("window_length", WindowLength);
    v.Integer("step_size", StepSize);
    v.Bool("gaps_in_window", GapsInWindow);
  }
};

// The dialog's defaults: 100 and 25, or Int(sites / 2) + 1 and Int(sites / 8) + 1 for a file
// of fewer than 100 sites.
[[nodiscard]] SlidingWindowSpec DefaultSlidingWindow(int32_t num_sites, bool gaps_in_window);

// (to - from + 1) / step must stay below this many windows.
inline constexpr int32_t kMaxWindows = 16350;
inline const std::string kTooManyWindows =
    " There are too many windows to analyze. Try to increase the step size (Sliding window)";
// Shown when the loop over the windows fails; the file's lines come before it.
inline const std::string kOutputTooBig = "Output too big.  Can't display it.";
inline const std::string kIncreaseStep = "Try to increase the step size (Sliding window)";
// The whole message of a failed loop over the windows, for the data file at `file_path`.
[[nodiscard]] std::string WindowLoopFailureMessage(const std::string& file_path);

// The checks of the window fields in the option dialog, in their order: both above 0, not too
// many windows, length within the file, not below the step, not beyond the region. The message
// of the first failure ("\n" between lines), or nothing when the window is acceptable.
// SlidingWindowRefusal gives the same message with, for a bare " Invalid Selection ", why.
[[nodiscard]] std::optional<SelectionRefusal> SlidingWindowRefusal(
    const SlidingWindowSpec& geometry, int32_t from, int32_t to, int32_t num_sites);
[[nodiscard]] std::optional<std::string> CheckSlidingWindow(const SlidingWindowSpec& geometry,
                                                            int32_t from, int32_t to,
                                                            int32_t num_sites);

// R = Int((to - from) / step) + 1: the most windows a region can hold; the row count of the
// window table. Walking over gaps can only make the windows fewer.
[[nodiscard]] int32_t WindowCapacity(int32_t from, int32_t to, int32_t step);

// The per-site classes the geometry reads: 1-based, index 0 unused; class 5 marks a site with a
// gap or missing data among the sequences in use.
using SiteClasses = std::vector<int16_t>;

// Start of the window after the one that started at `previous`: `step` sites further on, or
// `step` net sites further when gaps do not count; never beyond `to`.
[[nodiscard]] int32_t NextWindowStart(const SiteClasses& classes, int32_t previous, int32_t step,
                                      int32_t to, bool gaps_in_window);

// End of the window that starts at `start`: `length` sites on, or as far as it takes to hold
// `length` net sites when gaps do not count; never beyond `to`. `net_sites` gets the net sites
// of start..end.
[[nodiscard]] int32_t WindowEnd(const SiteClasses& classes, int32_t start, int32_t length,
                                int32_t to, bool gaps_in_window, int32_t& net_sites);

// The site in the middle of the window's net sites: the first site at which the count of net
// sites from `start` on reaches net_sites / 2, or `end` if none does first.
[[nodiscard]] int32_t WindowMidpoint(const SiteClasses& classes, int32_t start, int32_t end,
                                     int32_t net_sites);

struct WindowBounds {
  int32_t Start = 0;
  int32_t End = 0;
  int32_t NetSites = 0;
  int32_t Midpoint = 0;

  template <class V>
  void Visit(V& v) const {
    v.Integer("start", Start);
    v.Integer("end", End);
    v.Integer("net_sites", NetSites);
    v.Integer("midpoint", Midpoint);
  }
};

// The windows of one run: their geometry, how many the region could hold, and one row per
// window (a struct with `Window` and its own `Visit`).
template <class Row>
struct WindowRun {
  SlidingWindowSpec Geometry;
  int32_t Capacity = 0;  // R, the most windows the region could hold
  std::vector<Row> Rows;

  template <class V>
  void Visit(V& v) const {
    Geometry.Visit(v);
    v.Array("windows", Rows);
  }
};

// Every window of from..to in order: the first starts at `from`, each next one where
// NextWindowStart puts it, and the last is the first whose end reaches `to` (it may be shorter
// than the rest). Cost: the sum of the window lengths.
[[nodiscard]] std::vector<WindowBounds> SlideWindows(const SiteClasses& classes, int32_t from,
                                                     int32_t to, const SlidingWindowSpec& geometry);

// The run of every window of from..to over `classes` (see SlideWindows): each row made by
// `make_row(window)`, and `raise(percent)` after each, the percent being row / R.
template <class Row, class MakeRow, class Raise>
[[nodiscard]] WindowRun<Row> RunWindows(const SiteClasses& classes, int32_t from, int32_t to,
                                        const SlidingWindowSpec& geometry, MakeRow make_row,
                                        Raise raise) {
  WindowRun<Row> run;
  run.Geometry = geometry;
  run.Capacity = WindowCapacity(from, to, geometry.StepSize);
  const std::vector<WindowBounds> windows = SlideWindows(classes, from, to, geometry);
  run.Rows.reserve(windows.size());
  int32_t row = 0;
  for (const WindowBounds& w : windows) {
    run.Rows.push_back(make_row(w));
    ++row;
    raise(static_cast<int>(static_cast<double>(row) / run.Capacity * 100.0));
  }
  return run;
}

// The report block that closes an analysis run along windows (CR LF lines): " Sliding Window
// Option", the sentence on gaps, and the window length with the step size on one line.
[[nodiscard]] std::string SlidingBlock(const SlidingWindowSpec& geometry);
// The sentence on gaps alone (`gaps_counted` true: "were counted").
[[nodiscard]] std::string SlidingGapsSentence(bool gaps_counted);

// The label of the window mode in the option dialog.
[[nodiscard]] std::string SlidingModeLabel(bool gaps_in_window);

}  // namespace ovelt
