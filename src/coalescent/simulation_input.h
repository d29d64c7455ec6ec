#pragma once
// The parameters of a coalescent run as the dialog "The Coalescent" gives them, the dialog's
// fields as typed, and the checks that turn the one into the other. A refusal is the text of a
// box titled "Ovelt"; the face that runs the checks shows it and keeps the dialog open.

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace ovelt {

inline constexpr int32_t kUnsetSeedReplacement = 111295;  // a seed of 0 runs as this one

enum class GivenMode { kTheta, kSegSites };

struct SimulationSpec {
  GivenMode Given = GivenMode::kTheta;
  double Theta = 12.0;       // 0 < theta <= 1000 (theta given)
  int32_t SegSites = 0;      // 1 .. 3000 (S given)
  int16_t SampleSize = 10;   // 2 .. 500
  int32_t Replicates = 1000; // 1 .. 50000
  double ObservedValue = 0.0;
  float ConfidencePercent = 95.0f;  // 1 .. 100
  int16_t RecombinationChoice = 0;  // 0 none, 1 free, 2 intermediate with R
  double RecombinationR = 0.0;      // 0 .. 500, choice 2 only
  int32_t SitesInRegion = 0;        // 2 .. 32767 for choice 2; 0 otherwise
  int32_t Seed = 0;                 // 0 means kUnsetSeedReplacement
  int16_t StatisticCode = 0;        // the code of the statistic, + 1000 when S is given

  [[nodiscard]] bool SegSitesGiven() const { return Given == GivenMode::kSegSites; }
};

// The dialog's fields as typed, with their defaults.
struct SimulationForm {
  GivenMode Given = GivenMode::kTheta;
  std::string GivenText = "12";  // theta, or the number of segregating sites
  std::string SampleSizeText = "10";
  std::string ReplicatesText = "1000";
  std::string ObservedText = "0";
  std::string PercentText = "95";
  int16_t RecombinationChoice = 0;
  std::string RText = "10";
  std::string SitesText = "2000";
  std::string SeedText = "0";
  int16_t Statistic = 0;  // the code, without the 1000
};

struct SimulationMessage {
  std::string Text;
  std::string Title = "Ovelt";

  friend bool operator==(const SimulationMessage&, const SimulationMessage&) = default;
};

// A number typed with "," or "." as its separator: the comma becomes a point; more than one
// separator, an empty text or anything else that is not a number gives nullopt.
[[nodiscard]] std::optional<double> ReadTypedNumber(const std::string& text);

// The checks of "Run", in order; the first failure is the refusal ("Invalid Selection ", two
// line breaks and its words).
[[nodiscard]] std::variant<SimulationSpec, SimulationMessage> ReadSimulationForm(
    const SimulationForm& form);

// The notice shown when Theta-W is chosen with the number of segregating sites given: its
// distribution is then a single value. nullopt for every other choice.
[[nodiscard]] std::optional<SimulationMessage> ThetaFromSegSitesNotice(GivenMode given,
                                                                       int code);

// The observed value within the range of the statistic, else 0.
[[nodiscard]] double ObservedWithinBounds(int code, double value);

// The text of the field when the user switches from theta to segregating sites: the integer
// part of the theta typed, or 20 when that is 0 (or no number).
[[nodiscard]] std::string SegSitesTextOnSwitch(const std::string& thetaText);

// Whether a key typed in a number field is kept: digits, backspace (8), return (13), the
// separators "," and ".", and "-" where the field takes negative values.
[[nodiscard]] bool KeepsTypedKey(int key, bool minusAllowed);

// k, the number of values each tail keeps: the integer part of (100 - percent) / 200 x
// replicates in single precision, 0 taken as 1.
[[nodiscard]] int32_t TailSize(float percent, int32_t replicates);

// k', the tail size recomputed when fewer replicates than k did not fail: the integer part of
// effective x (100 - percent) / 200, taken exactly (not in single precision), 0 taken as 1.
[[nodiscard]] int32_t ReducedTailSize(float percent, int32_t effective);

}  // namespace ovelt
