#include "coalescent/coalescent_command.h"

#include <gtest/gtest.h>

#include <any>
#include <memory>

#include "coalescent/coalescent_options.h"
#include "coalescent/coalescent_run.h"
#include "coalescent/simulation_report.h"
#include "coalescent/statistic_code.h"
#include "command/command_failure.h"

namespace ovelt {
namespace {

CoalescentOptions Small(const std::string& seed) {
  CoalescentOptions o;
  o.Replicates = "200";
  o.Seed = seed;
  return o;
}

struct Ran {
  CommandProduct Product;
  std::shared_ptr<const CoalescentRun> Run;
  int LastGauge = -1;
  std::string Busy;
};

Ran RunWith(const CoalescentOptions& options, bool want_json = false) {
  Ran ran;
  RunContext context;
  context.Begin = [&ran](const std::string& words) { ran.Busy = words; };
  context.Progress.Gauge = [&ran](int percent) { ran.LastGauge = percent; };
  context.WantJson = want_json;
  TypedOptions<CoalescentOptions> typed(options);
  ran.Product = CoalescentBinding()->Run(context, typed);
  ran.Run = std::any_cast<std::shared_ptr<const CoalescentRun>>(ran.Product.Result);
  return ran;
}

CommandFailure FailureOf(const CoalescentOptions& options) {
  try {
    (void)RunWith(options);
  } catch (const CommandFailure& failure) {
    return failure;
  }
  ADD_FAILURE() << "the run stood";
  return CommandFailure(FailureKind::kFailed, "");
}

TEST(CoalescentCommand, NeedsNoDataAndLeavesTheReportAsText) {
  EXPECT_FALSE(CoalescentBinding()->NeedsData());
  const Ran ran = RunWith(Small("5"));
  EXPECT_EQ(ran.Busy, "Computing...");
  EXPECT_EQ(ran.LastGauge, 100);
  EXPECT_EQ(ran.Product.Report.Head, "");
  EXPECT_EQ(ran.Product.Report.Body, SimulationReportText(ran.Run->Input, ran.Run->Result));
  EXPECT_EQ(ran.Product.Report.Status, std::optional<std::string>("Coalescent Simulations"));
  EXPECT_EQ(ran.Product.Report.ShowKinds, std::vector<int>{kResultTextOnly});
  EXPECT_TRUE(ran.Product.Report.Notices.empty());
  EXPECT_EQ(ran.Run->Result.Seed, 5);
}

TEST(CoalescentCommand, SameSeedPrintsTheSameReportAndSeedZeroIs111295) {
  const std::string zero = RunWith(Small("0")).Product.Report.Body;
  EXPECT_EQ(RunWith(Small("0")).Product.Report.Body, zero);
  EXPECT_EQ(RunWith(Small("111295")).Product.Report.Body, zero);
  EXPECT_NE(zero.find("   Pseudorandom Number Seed: 111295\r\n"), std::string::npos);
  EXPECT_NE(RunWith(Small("111296")).Product.Report.Body, zero);
}

TEST(CoalescentCommand, TheFieldsAreRefusedInTheDialogsOrder) {
  CoalescentOptions bad = Small("1");
  bad.SampleSize = "1";
  bad.Replicates = "0";  // also bad, but the sample size is read first
  const CommandFailure failure = FailureOf(bad);
  EXPECT_EQ(failure.Kind(), FailureKind::kRefused);
  EXPECT_STREQ(failure.what(), "Invalid Selection \n\nThe minimum number of sequences is two");
  EXPECT_EQ(failure.Title(), "Ovelt");
}

TEST(CoalescentCommand, ThreadsOutsideTheirRangeAreRefusedWithTheReason) {
  CoalescentOptions bad = Small("1");
  bad.Threads = 0;
  const CommandFailure failure = FailureOf(bad);
  EXPECT_EQ(failure.Kind(), FailureKind::kRefused);
  EXPECT_EQ(failure.Reason(), "Threads must be from 1 to 256; it is 0.");
}

TEST(CoalescentCommand, AnUnknownStatisticNamesTheKnownOnes) {
  CoalescentOptions bad = Small("1");
  bad.Statistic = "tajima";
  const CommandFailure failure = FailureOf(bad);
  EXPECT_EQ(failure.Kind(), FailureKind::kRefused);
  EXPECT_NE(std::string(failure.what()).find("Unknown statistic \"tajima\""), std::string::npos);
  EXPECT_NE(std::string(failure.what()).find("fay-wu-h"), std::string::npos);
}

TEST(CoalescentCommand, AnErrorInsideTheRunFailsIt) {
  // More segregating sites than the 1000 sites of the region cannot be ordered along it.
  CoalescentOptions o = Small("1");
  o.SegSites = "1500";
  o.Statistic = "za";
  const CommandFailure failure = FailureOf(o);
  EXPECT_EQ(failure.Kind(), FailureKind::kFailed);
  EXPECT_EQ(std::string(failure.what()).rfind("Error in the Coalescent Module: ", 0), 0u);
}

TEST(CoalescentCommand, ASeedTheGeneratorCannotStartFromIsAnErrorOfTheModule) {
  // The seed variable is minus the seed; ran1 starts only from seed variables up to 54773.
  const CommandFailure failure = FailureOf(Small("-60000"));
  EXPECT_STREQ(failure.what(), "Error in the Coalescent Module: Invalid procedure call or argument");
  EXPECT_NO_THROW((void)RunWith(Small("-54773")));
}

TEST(CoalescentCommand, TypingSegregatingSitesChoosesThatMode) {
  CoalescentOptions o = Small("3");
  o.SegSites = "8";
  o.Theta = "5";
  const Ran ran = RunWith(o);
  EXPECT_TRUE(ran.Run->Input.SegSitesGiven());
  EXPECT_EQ(ran.Run->Input.SegSites, 8);
  EXPECT_EQ(ran.Run->Input.StatisticCode, 1000);
}

TEST(CoalescentCommand, TheDialogsChoiceOfSegregatingSitesWithAnEmptyFieldIsRefused) {
  CoalescentOptions o = Small("3");
  o.Given = GivenMode::kSegSites;
  EXPECT_STREQ(FailureOf(o).what(), "Invalid Selection \n\nInvalid number");
}

TEST(CoalescentCommand, TheFormAndTheOptionsCarryTheSameFields) {
  SimulationForm form;
  form.Given = GivenMode::kSegSites;
  form.GivenText = "7";
  form.SampleSizeText = "12";
  form.RecombinationChoice = 2;
  form.RText = "3,5";
  form.SitesText = "300";
  form.Statistic = kCodeFs;
  const auto back = FormOfOptions(OptionsOfForm(form, 4));
  const SimulationForm& f = std::get<SimulationForm>(back);
  EXPECT_EQ(f.Given, GivenMode::kSegSites);
  EXPECT_EQ(f.GivenText, "7");
  EXPECT_EQ(f.SampleSizeText, "12");
  EXPECT_EQ(f.RecombinationChoice, 2);
  EXPECT_EQ(f.RText, "3,5");
  EXPECT_EQ(f.SitesText, "300");
  EXPECT_EQ(f.Statistic, kCodeFs);
  form.RecombinationChoice = 1;
  EXPECT_EQ(std::get<SimulationForm>(FormOfOptions(OptionsOfForm(form))).RecombinationChoice, 1);
}

TEST(CoalescentCommand, ThetaWWithSegregatingSitesGivenIsNoticedAsTheOptionsArePicked) {
  CoalescentOptions o = Small("3");
  o.SegSites = "8";
  o.Statistic = "theta-w";
  TypedOptions<CoalescentOptions> typed(o);
  const auto notices = CoalescentBinding()->ChoiceNotices(typed);
  ASSERT_EQ(notices.size(), 1u);
  EXPECT_EQ(notices[0],
            "The empirical distribution of theta (from S) can not be generated fixing the number "
            "of segregating sites");
  o.SegSites.clear();
  TypedOptions<CoalescentOptions> theta(o);
  EXPECT_TRUE(CoalescentBinding()->ChoiceNotices(theta).empty());
}

TEST(CoalescentCommand, NoEffectiveReplicateGivesANoticeAndNullLimits) {
  CoalescentOptions o = Small("2");
  o.Theta = "0,0000001";
  o.Replicates = "50";
  const Ran ran = RunWith(o, true);
  ASSERT_EQ(ran.Run->Result.EffectiveReplicates, 0);
  ASSERT_EQ(ran.Product.Report.Notices.size(), 1u);
  EXPECT_EQ(ran.Product.Report.Notices[0].Icon, MsgIcon::kWarning);
  EXPECT_NE(ran.Product.Json.find("\"lower_limit\":null"), std::string::npos);
  EXPECT_NE(ran.Product.Json.find("\"probability_le\":null"), std::string::npos);
  EXPECT_NE(ran.Product.Json.find("\"effective_replicates\":0"), std::string::npos);
}

TEST(CoalescentCommand, JsonHoldsTheInputsAndTheResults) {
  CoalescentOptions o = Small("3");
  o.Threads = 2;
  const Ran ran = RunWith(o, true);
  const std::string& json = ran.Product.Json;
  EXPECT_EQ(json.rfind("{\"analysis\":\"Coalescent Simulations\",\"theta\":12,\"sequences\":10,"
                       "\"replicates\":200,\"statistic\":\"tajima-d\",\"statistic_code\":0,",
                       0),
            0u)
      << json;
  EXPECT_NE(json.find("\"threads\":2"), std::string::npos);
  EXPECT_NE(json.find("\"effective_replicates\":200"), std::string::npos);
  EXPECT_NE(json.find("\"seed\":3"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
