#include "coalescent/simulation_input.h"

#include <cctype>
#include <climits>
#include <cmath>
#include <cstdlib>

#include "coalescent/statistic_code.h"

namespace ovelt {
namespace {

constexpr int32_t kMaxSegSites = 3000;
constexpr double kMaxTheta = 1000.0;
constexpr int32_t kMaxSampleSize = 500;
constexpr int32_t kMaxReplicates = 50000;
constexpr double kMaxR = 500.0;
constexpr int32_t kMaxSites = 32767;
constexpr int32_t kMaxTailSize = 15500;

SimulationMessage Invalid(const std::string& words) {
  return {"Invalid Selection \n\n" + words};
}

// The integer part of (100 - percent) / 200 x replicates, in single precision.
int64_t RawTailSize(float percent, int32_t replicates) {
  const float share = (100.0f - percent) / 200.0f;
  return static_cast<int64_t>(share * static_cast<float>(replicates));
}

// A whole-number field: empty is 0, a fraction is rounded as a 16- or 32-bit assignment
// rounds (half to even).
std::optional<double> ReadCount(const std::string& text) {
  bool blank = true;
  for (const char c : text)
    if (!std::isspace(static_cast<unsigned char>(c))) blank = false;
  if (blank) return 0.0;
  const auto value = ReadTypedNumber(text);
  if (!value) return std::nullopt;
  return std::nearbyint(*value);
}

}  // namespace

std::optional<double> ReadTypedNumber(const std::string& text) {
  std::string t;
  int separators = 0;
  bool digit = false;
  for (char c : text) {
    if (c == ',') c = '.';
    if (c == '.') ++separators;
    if (std::isdigit(static_cast<unsigned char>(c))) digit = true;
    t += c;
  }
  if (separators > 1 || !digit) return std::nullopt;
  size_t first = t.find_first_not_of(' ');
  size_t last = t.find_last_not_of(' ');
  t = t.substr(first, last - first + 1);
  const char lead = t[0];
  if (!(std::isdigit(static_cast<unsigned char>(lead)) || lead == '.' || lead == '-' ||
        lead == '+'))
    return std::nullopt;
  char* end = nullptr;
  const double value = std::strtod(t.c_str(), &end);
  if (end != t.c_str() + t.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

double ObservedWithinBounds(int code, double value) {
  const StatisticEntry* e = FindStatistic(code);
  if (e == nullptr) return value;
  return value < e->ObservedLow || value > e->ObservedHigh ? 0.0 : value;
}

int32_t TailSize(float percent, int32_t replicates) {
  const int64_t k = RawTailSize(percent, replicates);
  return k == 0 ? 1 : static_cast<int32_t>(k);
}

int32_t ReducedTailSize(float percent, int32_t effective) {
  // Multiplied before the division, so that whole percents give the exact quotient.
  const double product = static_cast<double>(effective) * (100.0 - static_cast<double>(percent));
  const auto k = static_cast<int32_t>(std::floor(product / 200.0));
  return k == 0 ? 1 : k;
}

std::string SegSitesTextOnSwitch(const std::string& thetaText) {
  const auto theta = ReadTypedNumber(thetaText);
  const double whole = theta ? std::trunc(*theta) : 0.0;
  if (whole == 0.0 || std::fabs(whole) > 1e9) return "20";
  return std::to_string(static_cast<int64_t>(whole));
}

bool KeepsTypedKey(int key, bool minusAllowed) {
  if (key >= '0' && key <= '9') return true;
  if (key == 8 || key == 13 || key == ',' || key == '.') return true;
  return minusAllowed && key == '-';
}

std::optional<SimulationMessage> ThetaFromSegSitesNotice(GivenMode given, int code) {
  if (given != GivenMode::kSegSites || code % kGivenSegSitesOffset != kCodeThetaW)
    return std::nullopt;
  return SimulationMessage{
      "The empirical distribution of theta (from S) can not be generated fixing the number of "
      "segregating sites"};
}

std::variant<SimulationSpec, SimulationMessage> ReadSimulationForm(const SimulationForm& form) {
  SimulationSpec out;
  out.Given = form.Given;
  const int code = form.Statistic % kGivenSegSitesOffset;
  if (FindStatistic(code) == nullptr) return Invalid("Invalid number");

  // 1, 2: theta or S.
  const auto given = ReadTypedNumber(form.GivenText);
  if (form.Given == GivenMode::kSegSites) {
    if (!given) return Invalid("Invalid number");
    if (*given < 1.0) return Invalid("The number of segregating sites must be higher than 0");
    if (*given > kMaxSegSites) return Invalid("The maximum number of segregating sites is 3000");
    out.SegSites = static_cast<int32_t>(*given);
  } else {
    if (!given) return Invalid("Invalid number");
    if (*given <= 0.0) return Invalid("Theta must be higher than 0");
    if (*given > kMaxTheta) return Invalid("Theta must be lower than 1000");
    out.Theta = *given;
  }

  // 3: sample size.
  const auto n = ReadCount(form.SampleSizeText);
  if (!n) return Invalid("Invalid number");
  if (*n > kMaxSampleSize) return Invalid("The maximum number of sequences is 500");
  if (*n < 2) return Invalid("The minimum number of sequences is two");
  if (*n < 4 && code == kCodeTajimaD)
    return Invalid("At least 4 sequences are needed to compute the Tajima's D");
  if (*n < 3 && (code == kCodeFuLiD || code == kCodeFuLiF))
    return Invalid("At least 3 sequences are needed to compute Fu and Li's D and F tests");
  if (*n < 4 && (code == kCodeFuLiDStar || code == kCodeFuLiFStar))
    return Invalid("At least 4 sequences are needed to compute Fu and Li's D* and F* tests");
  out.SampleSize = static_cast<int16_t>(*n);

  // 4: replicates.
  const auto replicates = ReadCount(form.ReplicatesText);
  if (!replicates) return Invalid("Invalid number");
  if (*replicates > kMaxReplicates)
    return Invalid("In the present version the maximum number of replicates is 50000");
  if (*replicates < 1) return Invalid("The minimum number of simulation replicates is 1");
  out.Replicates = static_cast<int32_t>(*replicates);

  // 5: the observed value; empty is 0.
  if (form.ObservedText.find_first_not_of(' ') == std::string::npos) {
    out.ObservedValue = 0.0;
  } else {
    const auto observed = ReadTypedNumber(form.ObservedText);
    if (!observed) return Invalid("Invalid number");
    out.ObservedValue = ObservedWithinBounds(code, *observed);
  }

  // 6: the percent; empty is 95.
  if (form.PercentText.find_first_not_of(' ') == std::string::npos) {
    out.ConfidencePercent = 95.0f;
  } else {
    const auto percent = ReadTypedNumber(form.PercentText);
    if (!percent) return Invalid("Invalid number");
    if (*percent < 1.0) return Invalid("The % Confidence Interval must be higher than 1");
    if (*percent > 100.0) return Invalid("The % Confidence Interval must be lower than 100");
    out.ConfidencePercent = static_cast<float>(*percent);
  }

  // 7: R and the sites of the intermediate level.
  out.RecombinationChoice = form.RecombinationChoice;
  if (form.RecombinationChoice == 2) {
    const auto r = ReadTypedNumber(form.RText);
    if (!r) return Invalid("Invalid number");
    if (*r < 0.0) return Invalid("The recombination parameter must be higher than 0");
    if (*r > kMaxR) return Invalid("The recombination parameter must be lower than 500");
    const auto sites = ReadCount(form.SitesText);
    if (!sites) return Invalid("Invalid number");
    if (*sites > kMaxSites) return Invalid("The maximum number of sites is 32767");
    if (*sites < 2 && *r > 0.0) return Invalid("The minimum number of sites is 2");
    out.RecombinationR = *r;
    out.SitesInRegion = static_cast<int32_t>(*sites);
  }

  // 8: the tails must stay bounded.
  if (RawTailSize(out.ConfidencePercent, out.Replicates) >= kMaxTailSize)
    return Invalid(
        "Out of memory !!\nTry to increase the Confidence Intervals or reduce the number of "
        "replicates");

  // The seed field takes digits only in the dialog; a command line can type anything.
  const auto seed = ReadCount(form.SeedText);
  if (!seed || *seed < INT32_MIN || *seed > INT32_MAX) return Invalid("Invalid number");
  out.Seed = static_cast<int32_t>(*seed);

  // With no recombination left the choice falls back to none; R and the sites then play no part.
  if (out.RecombinationChoice == 2 && out.RecombinationR == 0.0) out.RecombinationChoice = 0;
  if (out.RecombinationChoice != 2) {
    out.RecombinationR = 0.0;
    out.SitesInRegion = 0;
  }
  out.StatisticCode =
      static_cast<int16_t>(code + (form.Given == GivenMode::kSegSites ? kGivenSegSitesOffset : 0));
  return out;
}

}  // namespace ovelt
