#include "tools/simulation_captions.h"

#include <cmath>

#include "output/format_mask.h"
#include "tools/typed_value.h"

namespace ovelt {
namespace {

constexpr int kHaplotypesCode = 10;
constexpr int kR2Code = 16;
constexpr int kGivenSegSitesOffset = 1000;

}  // namespace

SimulationCaptions CaptionsForStatistic(int code, std::string_view name, std::string_view symbol) {
  const std::string s(symbol);
  std::string heading = "Results of " + std::string(name);
  if (code % kGivenSegSitesOffset == kHaplotypesCode)
    heading = "Results of the number of Haplotypes, h";
  if (code % kGivenSegSitesOffset == kR2Code) heading = "Results of R2";
  return {heading, s + "(obs), value:", "P [" + s + " <= " + s + "(obs)]:",
          "Average value of " + s + ":"};
}

std::string ConfidenceFrameCaption(float percent) {
  return NumberText(percent) + " % Confidence Interval";
}

std::string SegSitesTextFromTheta(std::string_view theta_text) {
  const TypedValue typed = ReadTypedValue(theta_text);
  if (typed.Status != TypedStatus::kNumber) return "20";
  const double whole = std::trunc(typed.Value);
  if (whole == 0 || std::fabs(whole) > 2e9) return "20";
  return NumberText(static_cast<int64_t>(whole));
}

}  // namespace ovelt
