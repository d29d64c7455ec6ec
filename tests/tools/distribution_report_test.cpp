#include "tools/distribution_report.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "ewens_source.h"
#include "output/output_channel.h"
#include "support/scripted_platform.h"
#include "tools/distribution_run.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::StirlingTail;

// p = 0.3, n = 5, k = 2: 0.3087, 0.52822, 1.5, 1.05 with SD 1.024695 (see the binomial tests).
const char* const kBinomialReport =
    " ====== Input Data ======\r\n"
    " Value of p: 0.3\r\n"
    " Value of n: 5\r\n"
    " Value of k: 2\r\n"
    " ======== Output ========\r\n"
    " P [X = 2] = 0.308700\r\n"
    " P [X < 2] = 0.528220\r\n"
    " Expected value, E[X] = 1.500\r\n"
    " Variance, var [X] = 1.050   (SD = 1.025)\r\n";

TEST(DistributionReport, Binomial) {
  const BinomialInput input{0.3, 5, 2};
  const DiscreteProbabilities r{0.3087, 0.52822, 1.5, 1.05};
  EXPECT_EQ(BinomialReportText(input, r), kBinomialReport);
}

TEST(DistributionReport, Hypergeometric) {
  // N = 10, M = 4, n = 3, k = 1: 1/2, 1/6, 1.2 and 0.56 with SD 0.748331.
  const std::string text = HypergeometricReportText({10, 4, 3, 1}, {0.5, 1.0 / 6, 1.2, 0.56});
  EXPECT_EQ(text,
            " ====== Input Data ======\r\n"
            " Population Size: 10\r\n"
            " Successes in the Population: 4\r\n"
            " Value of n: 3\r\n"
            " Value of k: 1\r\n"
            " ======== Output ========\r\n"
            " P [X = 1] = 0.500000\r\n"
            " P [X < 1] = 0.166667\r\n"
            " Expected value, E[X] = 1.200\r\n"
            " Variance, var [X] = 0.560   (SD = 0.748)\r\n");
}

TEST(DistributionReport, Poisson) {
  // lambda = 2.5, k = 3: e^-2.5 2.5^3 / 6 = 0.213763; e^-2.5 (1 + 2.5 + 3.125) = 0.543813.
  const std::string text = PoissonReportText({2.5, 3}, {0.2137630172, 0.5438131, 2.5, 2.5});
  EXPECT_EQ(text,
            " ====== Input Data ======\r\n"
            " Value of lambda: 2.5\r\n"
            " Value of k: 3\r\n"
            " ======== Output ========\r\n"
            " P [X = 3] = 0.213763\r\n"
            " P [X < 3] = 0.543813\r\n"
            " Expected value, E[X] = 2.500\r\n"
            " Variance, var [X] = 2.500   (SD = 1.581)\r\n");
}

const char* const kEwensReport =
    " ====== Input Data ======\r\n"
    " Sample Size: 3\r\n"
    " NHap, Number of Haplotypes: 2\r\n"
    " Value of Theta: 1\r\n"
    " ======== Output ========\r\n"
    " P [NHap = 2] = 0.5000\r\n"
    " Strobeck's S statistic: 0.8333   (P [NHap <= 2])\r\n"
    " Expected value, E[NHap] = 1.8333\r\n"
    " Fu's Fs statistic: 0.6931\r\n";

TEST(DistributionReport, Ewens) {
  // The hand-worked sample of the Ewens tests: 1/2, 5/6, 11/6 and ln 2.
  EXPECT_EQ(EwensReportText({3, 2, 1.0}, {0.5, 5.0 / 6, 11.0 / 6, std::log(2.0)}), kEwensReport);
}

TEST(DistributionReport, AnFsOutOfRangePrintsAsItStands) {
  const std::string text = EwensReportText({500, 1, 300.0}, {0, 0, 1.0, std::nullopt});
  EXPECT_NE(text.find(" Fu's Fs statistic: 1234567\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find(" Value of Theta: 300\r\n"), std::string::npos);
}

TEST(DistributionRun, BinomialStandsInTheChannel) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  BinomialRun run;
  EXPECT_FALSE(RunBinomial(channel, {"0,3", "5", "2"}, &run));
  EXPECT_EQ(channel.TextBuffer, kBinomialReport);
  EXPECT_EQ(channel.ResultCode, 41);
  EXPECT_EQ(channel.TextShown, 1);
  EXPECT_EQ(platform.StatusTexts.front(), "Computing...");
  EXPECT_EQ(channel.StatusText(), "For Help, press F1");
  EXPECT_NEAR(run.Result.PEqual, 0.3087, 1e-12);

  JsonText json;
  WriteJson(json, run);
  EXPECT_NE(json.Text().find("\"distribution\":\"binomial\""), std::string::npos) << json.Text();
  EXPECT_NE(json.Text().find("\"n\":5"), std::string::npos);
}

TEST(DistributionRun, EachTabReportsThroughTheChannel) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_FALSE(RunHypergeometric(channel, {"10", "4", "3", "1"}));
  EXPECT_NE(channel.TextBuffer.find(" P [X = 1] = 0.500000\r\n"), std::string::npos);
  ASSERT_FALSE(RunPoisson(channel, {"2.5", "3"}));
  EXPECT_NE(channel.TextBuffer.find(" P [X < 3] = 0.543813\r\n"), std::string::npos);
  EXPECT_EQ(channel.TextBuffer.find("Population"), std::string::npos);  // the run replaced it
  EwensRun run;
  ASSERT_FALSE(RunEwens(channel, {"3", "2", "1"}, StirlingTail, &run));
  EXPECT_EQ(channel.TextBuffer, kEwensReport);
  EXPECT_EQ(channel.ResultCode, 41);
}

TEST(DistributionRun, ARefusalTellsTheCodesWordsAndComputesNothing) {
  ScriptedPlatform platform;
  OutputChannel channel(platform);
  ASSERT_FALSE(RunBinomial(channel, {"0.3", "5", "2"}));
  const auto refusal = RunPoisson(channel, {"0", "3"});
  ASSERT_TRUE(refusal);
  EXPECT_EQ(*refusal, (ToolMessage{"The lambda value must be higher than 0", "Ovelt"}));
  EXPECT_EQ(channel.ReopenDialog, 1);
  EXPECT_EQ(channel.TextBuffer, kBinomialReport);

  bool asked = false;
  const auto too_large = RunEwens(channel, {"501", "2", "1"}, [&asked](int32_t, int32_t, double) {
    asked = true;
    return EwensTail{};
  });
  ASSERT_TRUE(too_large);
  EXPECT_EQ(too_large->Text, "The sample size must be lower than 501");
  EXPECT_FALSE(asked);
  EXPECT_EQ(RunHypergeometric(channel, {"10", "", "3", "1"})->Text, "Missing data");
}

}  // namespace
}  // namespace ovelt
