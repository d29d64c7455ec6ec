#include "analyses/polymorphism/windows/sliding_window.h"

#include <algorithm>

#include "core/active_data.h"
#include "core/region_check.h"

namespace ovelt {

namespace {

bool IsGapSite(const SiteClasses& classes, int32_t site) {
  return classes[static_cast<size_t>(site)] == kGapOrMissing;
}

int32_t GapSitesIn(const SiteClasses& classes, int32_t first, int32_t last) {
  int32_t gaps = 0;
  for (int32_t site = first; site <= last; ++site) gaps += IsGapSite(classes, site) ? 1 : 0;
  return gaps;
}

}  // namespace

SlidingWindowSpec DefaultSlidingWindow(int32_t num_sites, bool gaps_in_window) {
  SlidingWindowSpec geometry;
  geometry.GapsInWindow = gaps_in_window;
  if (num_sites < 100) {
    geometry.WindowLength = num_sites / 2 + 1;
    geometry.StepSize = num_sites / 8 + 1;
  }
  return geometry;
}

std::optional<SelectionRefusal> SlidingWindowRefusal(const SlidingWindowSpec& geometry,
                                                     int32_t from, int32_t to, int32_t num_sites) {
  const std::string window = "The window length (" + std::to_string(geometry.WindowLength) + ")";
  const std::string step = "the step size (" + std::to_string(geometry.StepSize) + ")";
  if (geometry.WindowLength <= 0 || geometry.StepSize <= 0)
    return SelectionRefusal{kInvalidSelection, window + " and " + step + " must be above 0."};
  const double windows = (static_cast<double>(to) - from + 1.0) / geometry.StepSize;
  if (windows >= kMaxWindows)
    return SelectionRefusal{kTooManyWindows + "\n\n" + kInvalidSelection, ""};
  if (geometry.WindowLength > num_sites)
    return SelectionRefusal{kInvalidSelection, window + " is longer than the data (" +
                                                   std::to_string(num_sites) + " sites)."};
  if (geometry.WindowLength < geometry.StepSize)
    return SelectionRefusal{kInvalidSelection, window + " is shorter than " + step + "."};
  const int64_t region = static_cast<int64_t>(to) - from + 1;
  if (static_cast<int64_t>(geometry.WindowLength) > region)
    return SelectionRefusal{kInvalidSelection, window + " is longer than the region (" +
                                                   std::to_string(region) + " sites)."};
  return std::nullopt;
}

std::optional<std::string> CheckSlidingWindow(const SlidingWindowSpec& geometry, int32_t from,
                                              int32_t to, int32_t num_sites) {
  if (auto refusal = SlidingWindowRefusal(geometry, from, to, num_sites)) return refusal->Text;
  return std::nullopt;
}

std::string WindowLoopFailureMessage(const std::string& file_path) {
  return "Input data file: " + file_path + "\n" + kOutputTooBig + "\n" + kIncreaseStep;
}

int32_t WindowCapacity(int32_t from, int32_t to, int32_t step) {
  if (step <= 0 || to < from) return 0;
  return (to - from) / step + 1;
}

int32_t NextWindowStart(const SiteClasses& classes, int32_t previous, int32_t step, int32_t to,
                        bool gaps_in_window) {
  int32_t e = static_cast<int32_t>(std::min<int64_t>(static_cast<int64_t>(previous) + step, to));
  if (gaps_in_window || e == to) return e;
  int32_t gaps = GapSitesIn(classes, previous, e);
  if (gaps == 0) return e;
  // Walk on until `step` net sites lie between the previous start and the new one.
  while (e < to) {
    ++e;
    if (IsGapSite(classes, e)) ++gaps;
    if (e - previous - gaps == step) break;
  }
  return e;
}

int32_t WindowEnd(const SiteClasses& classes, int32_t start, int32_t length, int32_t to,
                  bool gaps_in_window, int32_t& net_sites) {
  int32_t e =
      static_cast<int32_t>(std::min<int64_t>(static_cast<int64_t>(start) + length - 1, to));
  int32_t gaps = GapSitesIn(classes, start, e);
  if (!gaps_in_window && gaps > 0) {
    // Push the end on until the window holds `length` net sites.
    while (e < to && e - start + 1 - gaps != length) {
      ++e;
      if (IsGapSite(classes, e)) ++gaps;
    }
  }
  net_sites = e - start + 1 - gaps;
  return e;
}

int32_t WindowMidpoint(const SiteClasses& classes, int32_t start, int32_t end,
                       int32_t net_sites) {
  const double half = net_sites / 2.0;
  int32_t counted = 0;
  for (int32_t site = start; site <= end; ++site) {
    if (!IsGapSite(classes, site)) ++counted;
    if (counted >= half) return site;
  }
  return end;
}

std::vector<WindowBounds> SlideWindows(const SiteClasses& classes, int32_t from, int32_t to,
                                       const SlidingWindowSpec& geometry) {
  std::vector<WindowBounds> windows;
  if (to < from || geometry.StepSize <= 0 || geometry.WindowLength <= 0) return windows;
  windows.reserve(static_cast<size_t>(WindowCapacity(from, to, geometry.StepSize)));
  int32_t previous = -1;
  int32_t start = from;
  while (true) {
    if (previous > 0)
      start = NextWindowStart(classes, previous, geometry.StepSize, to, geometry.GapsInWindow);
    WindowBounds w;
    w.Start = start;
    w.End = WindowEnd(classes, start, geometry.WindowLength, to, geometry.GapsInWindow, w.NetSites);
    w.Midpoint = WindowMidpoint(classes, w.Start, w.End, w.NetSites);
    windows.push_back(w);
    previous = start;
    if (w.End >= to) break;
  }
  return windows;
}

std::string SlidingGapsSentence(bool gaps_counted) {
  return gaps_counted
             ? " Sites with alignment gaps were counted in the window length (and slide)"
             : " Sites with alignment gaps were not counted in the window length (and slide)";
}

std::string SlidingBlock(const SlidingWindowSpec& geometry) {
  return " Sliding Window Option\r\n" + SlidingGapsSentence(geometry.GapsInWindow) + "\r\n" +
         "   Window length: " + std::to_string(geometry.WindowLength) +
         "     Step size: " + std::to_string(geometry.StepSize) + "\r\n";
}

std::string SlidingModeLabel(bool gaps_in_window) {
  return gaps_in_window ? " Including sites with gaps " : " Excluding sites with gaps ";
}

}  // namespace ovelt
