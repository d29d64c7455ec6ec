#pragma once
// The words of the results area of "The Coalescent", which follow the statistic chosen in the
// list: the heading "Results of ...", the label of the observed value, of the probability of a
// value not above it and of the average. Also the text the given field takes when the user
// switches from theta to the number of segregating sites.

#include <cstdint>
#include <string>
#include <string_view>

namespace ovelt {

struct SimulationCaptions {
  std::string Heading;      // "Results of Haplotype Diversity, Hd"
  std::string Observed;     // "Hd(obs), value:"
  std::string Probability;  // "P [Hd <= Hd(obs)]:"
  std::string Average;      // "Average value of Hd:"

  friend bool operator==(const SimulationCaptions&, const SimulationCaptions&) = default;
};

// `code` is the statistic's code (with or without the 1000 of a given S); `name` and `symbol`
// are its list name and results symbol. The number of haplotypes and R2 have headings of their
// own; every other heading is "Results of " and the list name.
[[nodiscard]] SimulationCaptions CaptionsForStatistic(int code, std::string_view name,
                                                      std::string_view symbol);

// The frame of the limits after a run: the percent, " % " and "Confidence Interval".
[[nodiscard]] std::string ConfidenceFrameCaption(float percent);

// The number of segregating sites offered when the user switches from theta: the integer part
// of the theta typed last, or 20 when that is 0 or is no number.
[[nodiscard]] std::string SegSitesTextFromTheta(std::string_view theta_text);

}  // namespace ovelt
