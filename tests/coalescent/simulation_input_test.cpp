#include "coalescent/simulation_input.h"

#include <gtest/gtest.h>

#include <variant>

#include "coalescent/statistic_code.h"

namespace ovelt {
namespace {

std::string Refusal(const SimulationForm& form) {
  const auto read = ReadSimulationForm(form);
  if (const auto* m = std::get_if<SimulationMessage>(&read)) {
    EXPECT_EQ(m->Title, "Ovelt");
    return m->Text;
  }
  return "";
}

std::string Words(const std::string& text) { return "Invalid Selection \n\n" + text; }

SimulationSpec Accepted(const SimulationForm& form) {
  const auto read = ReadSimulationForm(form);
  EXPECT_TRUE(std::holds_alternative<SimulationSpec>(read)) << Refusal(form);
  return std::get<SimulationSpec>(read);
}

TEST(ReadTypedNumber, TakesCommaOrPointAndOnlyOneOfThem) {
  EXPECT_EQ(ReadTypedNumber("12"), 12.0);
  EXPECT_EQ(ReadTypedNumber("0,5"), 0.5);
  EXPECT_EQ(ReadTypedNumber("0.5"), 0.5);
  EXPECT_EQ(ReadTypedNumber("-1,25"), -1.25);
  EXPECT_EQ(ReadTypedNumber(",5"), 0.5);
  EXPECT_FALSE(ReadTypedNumber("1,2.3"));
  EXPECT_FALSE(ReadTypedNumber("1..3"));
  EXPECT_FALSE(ReadTypedNumber(""));
  EXPECT_FALSE(ReadTypedNumber("abc"));
  EXPECT_FALSE(ReadTypedNumber("12x"));
  EXPECT_FALSE(ReadTypedNumber("inf"));
}

TEST(ReadSimulationForm, DefaultsGiveTheDefaultRun) {
  const SimulationSpec s = Accepted(SimulationForm{});
  EXPECT_EQ(s.Given, GivenMode::kTheta);
  EXPECT_EQ(s.Theta, 12.0);
  EXPECT_EQ(s.SampleSize, 10);
  EXPECT_EQ(s.Replicates, 1000);
  EXPECT_EQ(s.ObservedValue, 0.0);
  EXPECT_EQ(s.ConfidencePercent, 95.0f);
  EXPECT_EQ(s.RecombinationChoice, 0);
  EXPECT_EQ(s.RecombinationR, 0.0);
  EXPECT_EQ(s.SitesInRegion, 0);
  EXPECT_EQ(s.Seed, 0);
  EXPECT_EQ(s.StatisticCode, kCodeTajimaD);
}

TEST(ReadSimulationForm, SegregatingSitesChecks) {
  SimulationForm f;
  f.Given = GivenMode::kSegSites;
  f.GivenText = "";
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
  f.GivenText = "1,2,3";
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
  f.GivenText = "0";
  EXPECT_EQ(Refusal(f), Words("The number of segregating sites must be higher than 0"));
  f.GivenText = "3001";
  EXPECT_EQ(Refusal(f), Words("The maximum number of segregating sites is 3000"));
  f.GivenText = "3000";
  f.Statistic = kCodePi;
  const SimulationSpec s = Accepted(f);
  EXPECT_EQ(s.SegSites, 3000);
  EXPECT_EQ(s.StatisticCode, 1000 + kCodePi);
}

TEST(ReadSimulationForm, ThetaChecks) {
  SimulationForm f;
  f.GivenText = "x";
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
  f.GivenText = "0";
  EXPECT_EQ(Refusal(f), Words("Theta must be higher than 0"));
  f.GivenText = "1000,5";
  EXPECT_EQ(Refusal(f), Words("Theta must be lower than 1000"));
  f.GivenText = "1000";
  EXPECT_EQ(Accepted(f).Theta, 1000.0);
  f.GivenText = "0,01";
  EXPECT_EQ(Accepted(f).Theta, 0.01);
}

TEST(ReadSimulationForm, SampleSizeChecksInOrder) {
  SimulationForm f;
  f.SampleSizeText = "501";
  EXPECT_EQ(Refusal(f), Words("The maximum number of sequences is 500"));
  f.SampleSizeText = "1";
  EXPECT_EQ(Refusal(f), Words("The minimum number of sequences is two"));
  f.SampleSizeText = "3";
  f.Statistic = kCodeTajimaD;
  EXPECT_EQ(Refusal(f), Words("At least 4 sequences are needed to compute the Tajima's D"));
  f.SampleSizeText = "2";
  for (const int code : {kCodeFuLiD, kCodeFuLiF}) {
    f.Statistic = static_cast<int16_t>(code);
    EXPECT_EQ(Refusal(f),
              Words("At least 3 sequences are needed to compute Fu and Li's D and F tests"));
  }
  f.SampleSizeText = "3";
  EXPECT_EQ(Accepted(f).SampleSize, 3);
  for (const int code : {kCodeFuLiDStar, kCodeFuLiFStar}) {
    f.Statistic = static_cast<int16_t>(code);
    EXPECT_EQ(Refusal(f),
              Words("At least 4 sequences are needed to compute Fu and Li's D* and F* tests"));
  }
  f.Statistic = kCodePi;
  f.SampleSizeText = "2";
  EXPECT_EQ(Accepted(f).SampleSize, 2);
  // The theta check comes first.
  f.GivenText = "0";
  f.SampleSizeText = "1";
  EXPECT_EQ(Refusal(f), Words("Theta must be higher than 0"));
}

TEST(ReadSimulationForm, ReplicateChecks) {
  SimulationForm f;
  f.ReplicatesText = "50001";
  EXPECT_EQ(Refusal(f), Words("In the present version the maximum number of replicates is 50000"));
  f.ReplicatesText = "0";
  EXPECT_EQ(Refusal(f), Words("The minimum number of simulation replicates is 1"));
  f.ReplicatesText = "";
  EXPECT_EQ(Refusal(f), Words("The minimum number of simulation replicates is 1"));
  // Sample size is checked before the replicates.
  f.SampleSizeText = "600";
  EXPECT_EQ(Refusal(f), Words("The maximum number of sequences is 500"));
}

TEST(ReadSimulationForm, ObservedValue) {
  SimulationForm f;
  f.ObservedText = "1,5.2";
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
  f.ObservedText = "";
  EXPECT_EQ(Accepted(f).ObservedValue, 0.0);
  f.ObservedText = "-1,5";
  EXPECT_EQ(Accepted(f).ObservedValue, -1.5);
  // Out of the statistic's range goes back to 0: Hd lies in 0..1, r in 0..2, ZZ at most 1.
  f.Statistic = kCodeHd;
  f.ObservedText = "1.2";
  EXPECT_EQ(Accepted(f).ObservedValue, 0.0);
  f.ObservedText = "0.7";
  EXPECT_EQ(Accepted(f).ObservedValue, 0.7);
  f.Statistic = kCodeRaggedness;
  f.ObservedText = "1.5";
  EXPECT_EQ(Accepted(f).ObservedValue, 1.5);
  f.Statistic = kCodeZZ;
  f.ObservedText = "-0.5";
  EXPECT_EQ(Accepted(f).ObservedValue, -0.5);
}

TEST(ReadSimulationForm, PercentChecks) {
  SimulationForm f;
  f.PercentText = "";
  EXPECT_EQ(Accepted(f).ConfidencePercent, 95.0f);
  f.PercentText = "0,5";
  EXPECT_EQ(Refusal(f), Words("The % Confidence Interval must be higher than 1"));
  f.PercentText = "100.1";
  EXPECT_EQ(Refusal(f), Words("The % Confidence Interval must be lower than 100"));
  f.PercentText = "100";
  EXPECT_EQ(Accepted(f).ConfidencePercent, 100.0f);
  // The observed value is checked first.
  f.ObservedText = "a";
  f.PercentText = "0";
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
}

TEST(ReadSimulationForm, RecombinationChecksOnlyForTheIntermediateLevel) {
  SimulationForm f;
  f.RText = "abc";
  f.SitesText = "99999";
  EXPECT_EQ(Accepted(f).RecombinationChoice, 0);
  f.RecombinationChoice = 1;
  const SimulationSpec free = Accepted(f);
  EXPECT_EQ(free.RecombinationChoice, 1);
  EXPECT_EQ(free.RecombinationR, 0.0);
  EXPECT_EQ(free.SitesInRegion, 0);

  f.RecombinationChoice = 2;
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
  f.RText = "";
  EXPECT_EQ(Refusal(f), Words("Invalid number"));
  f.RText = "-1";
  EXPECT_EQ(Refusal(f), Words("The recombination parameter must be higher than 0"));
  f.RText = "500,5";
  EXPECT_EQ(Refusal(f), Words("The recombination parameter must be lower than 500"));
  f.RText = "10";
  EXPECT_EQ(Refusal(f), Words("The maximum number of sites is 32767"));
  f.SitesText = "1";
  EXPECT_EQ(Refusal(f), Words("The minimum number of sites is 2"));
  f.SitesText = "2";
  SimulationSpec s = Accepted(f);
  EXPECT_EQ(s.RecombinationChoice, 2);
  EXPECT_EQ(s.RecombinationR, 10.0);
  EXPECT_EQ(s.SitesInRegion, 2);
  // R = 0 needs no sites and falls back to no recombination.
  f.RText = "0";
  f.SitesText = "1";
  s = Accepted(f);
  EXPECT_EQ(s.RecombinationChoice, 0);
  EXPECT_EQ(s.SitesInRegion, 0);
}

TEST(ReadSimulationForm, TailsMustStayBelow15500) {
  SimulationForm f;
  f.ReplicatesText = "50000";
  f.PercentText = "38";  // (100 - 38) / 200 x 50000 = 15500
  EXPECT_EQ(Refusal(f), Words("Out of memory !!\nTry to increase the Confidence Intervals or "
                              "reduce the number of replicates"));
  f.PercentText = "38,1";  // 15475
  EXPECT_EQ(Accepted(f).Replicates, 50000);
}

TEST(ReadSimulationForm, ThetaFromSegregatingSitesIsANoticeNotARefusal) {
  SimulationForm f;
  f.Given = GivenMode::kSegSites;
  f.GivenText = "20";
  f.Statistic = kCodeThetaW;
  EXPECT_EQ(Accepted(f).StatisticCode, 1003);
  const auto notice = ThetaFromSegSitesNotice(GivenMode::kSegSites, kCodeThetaW);
  ASSERT_TRUE(notice);
  EXPECT_EQ(notice->Text,
            "The empirical distribution of theta (from S) can not be generated fixing the "
            "number of segregating sites");
  EXPECT_FALSE(ThetaFromSegSitesNotice(GivenMode::kTheta, kCodeThetaW));
  EXPECT_FALSE(ThetaFromSegSitesNotice(GivenMode::kSegSites, kCodePi));
}

TEST(ReducedTailSize, IsTakenExactlyNotInSinglePrecision) {
  // 4800 x 84 / 200 = 2016 exactly; in single precision the share 0.42 falls just below and
  // the product truncates to 2015.
  EXPECT_EQ(static_cast<int32_t>(4800.0f * ((100.0f - 16.0f) / 200.0f)), 2015);
  EXPECT_EQ(ReducedTailSize(16.0f, 4800), 2016);
  EXPECT_EQ(ReducedTailSize(95.0f, 400), 10);
  EXPECT_EQ(ReducedTailSize(95.0f, 39), 1);  // 0.975 truncates to 0, taken as 1
  EXPECT_EQ(ReducedTailSize(100.0f, 500), 1);
}

TEST(TailSize, IsTheIntegerPartWithZeroTakenAsOne) {
  EXPECT_EQ(TailSize(95.0f, 1000), 25);
  EXPECT_EQ(TailSize(95.0f, 1), 1);
  EXPECT_EQ(TailSize(100.0f, 5000), 1);
  EXPECT_EQ(TailSize(90.0f, 999), 49);  // 49.95
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

TEST(SegSitesTextOnSwitch, TakesTheIntegerPartOfThetaOr20) {
  EXPECT_EQ(SegSitesTextOnSwitch("12"), "12");
  EXPECT_EQ(SegSitesTextOnSwitch("12,7"), "12");
  EXPECT_EQ(SegSitesTextOnSwitch("0.5"), "20");
  EXPECT_EQ(SegSitesTextOnSwitch(""), "20");
}

TEST(KeepsTypedKey, DigitsControlKeysSeparatorsAndMinusWhereAllowed) {
  for (const char c : std::string("0123456789,.")) EXPECT_TRUE(KeepsTypedKey(c, false)) << c;
  EXPECT_TRUE(KeepsTypedKey(8, false));
  EXPECT_TRUE(KeepsTypedKey(13, false));
  EXPECT_FALSE(KeepsTypedKey('-', false));
  EXPECT_TRUE(KeepsTypedKey('-', true));
  EXPECT_FALSE(KeepsTypedKey('e', true));
  EXPECT_FALSE(KeepsTypedKey(' ', true));
}

}  // namespace
}  // namespace ovelt
