// The JSON of "Population Size Changes", read back: the hand-worked alignment of
// size_change_fixture.h, counts as integers, the README's keys, null where there is no value.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "analyses/polymorphism/size_changes/size_change_options.h"
#include "polymorphism/run_fixture.h"
#include "polymorphism/size_change_fixture.h"
#include "support/json_reader.h"

namespace ovelt {
namespace {

using testing::JsonValue;

// The JSON of a run of the options on the five hand-worked sequences.
JsonValue JsonOf(const SizeChangeOptions& options) {
  testing::ScriptedPlatform ui;
  OutputChannel out{ui};
  ActiveData ad = test::MakeAlignment(test::kFiveSequences);
  const RunOutcome outcome = test::RunWith(CommandId::kSizeChanges, ad, out, ui, options, true);
  EXPECT_TRUE(outcome.Stands);
  return JsonValue::Parse(outcome.Json);
}

TEST(SizeChangeJson, MismatchOfTheHandWorkedAlignment) {
  const JsonValue j = JsonOf(SizeChangeOptions{});
  EXPECT_EQ(j.Keys().front(), "analysis");
  EXPECT_EQ(j["analysis"].Text(), "Population Size Changes");
  for (const auto& [key, count] : std::vector<std::pair<std::string, long long>>{
           {"region_from", 1}, {"region_to", 8}, {"kind", 11}, {"sequences", 5},
           {"net_sites", 7}, {"segregating_sites", 4}, {"pairs", 10}, {"table_rows", 4}}) {
    ASSERT_TRUE(j[key].IsInteger()) << key;
    EXPECT_EQ(j[key].Integer(), count) << key;
  }
  EXPECT_EQ(j["model"].Text(), "Constant Population Size");
  // Pairs by their differences (size_change_fixture.h): 4 at 1, 4 at 2, 2 at 3; k = 18 / 10.
  const JsonValue& mismatch = j["mismatch_distribution"];
  ASSERT_EQ(mismatch.size(), 4u);
  const long long pairs[] = {0, 4, 4, 2};
  for (size_t i = 0; i < 4; ++i) {
    EXPECT_TRUE(mismatch[i].IsInteger());
    EXPECT_EQ(mismatch[i].Integer(), pairs[i]);
  }
  EXPECT_NEAR(j["k"].Number(), 1.8, 1e-12);
  EXPECT_NEAR(j["pi"].Number(), 1.8 / 7, 1e-12);
  // Sum of (d - k)^2 over the pairs / (C - 1): (4 0.64 + 4 0.04 + 2 1.44) / 9.
  EXPECT_NEAR(j["var_k"].Number(), 5.6 / 9, 1e-12);
  // Raggedness: shares 0, 0.4, 0.4, 0.2 and 0 after: 0.16 + 0 + 0.04 + 0.04 = 0.24.
  EXPECT_NEAR(j["raggedness"].Number(), 0.24, 1e-12);
  // Tajima (1993) with n = 5, k = 1.8: (3 n (n + 1) k + 2 (n^2 + n + 3) k^2) / (11 n^2 - 7 n + 6).
  const double total = (90 * 1.8 + 66 * 3.24) / 246;
  EXPECT_NEAR(j["var_k_no_recombination"].Number(), total, 1e-12);
  EXPECT_NEAR(j["cv_k_no_recombination"].Number(), std::sqrt(total) / 1.8, 1e-12);
  EXPECT_NEAR(j["var_k_stochastic_free_recombination"].Number(), 1.8 / 3, 1e-12);
  // Folded spectrum: three singletons (sites 1, 2, 5) and one doubleton (site 4).
  const JsonValue& spectrum = j["folded_spectrum"];
  ASSERT_EQ(spectrum.size(), 2u);
  EXPECT_EQ(spectrum[0].Integer(), 3);
  EXPECT_EQ(spectrum[1].Integer(), 1);
  // VarK below k: tau 0 and theta initial k (Rogers 1995); constant size takes theta = k.
  EXPECT_NEAR(j["tau_estimate"].Number(), 0.0, 1e-12);
  EXPECT_NEAR(j["theta_initial_estimate"].Number(), 1.8, 1e-12);
  EXPECT_NEAR(j["theta_initial"].Number(), 1.8, 1e-12);
  EXPECT_NEAR(j["theta_final"].Number(), 1.8, 1e-12);
  // No change of size, no time since it.
  EXPECT_TRUE(j["time_since_change"].IsNull());
  // Watterson: E(Sn) = theta a1(n).
  const double a1 = 1 + 0.5 + 1.0 / 3 + 0.25;
  EXPECT_NEAR(j["expected_sn"].Number(), 1.8 * a1, 1e-12);
  EXPECT_NEAR(j["expected_sn_per_a1"].Number(), 1.8, 1e-12);
  EXPECT_NEAR(j["expected_s2"].Number(), 1.8, 1e-12);
  // Rows of the table: differences 0..3, observed shares, theta^i / (1 + theta)^(i + 1).
  const JsonValue& table = j["table"];
  ASSERT_EQ(table.size(), 4u);
  EXPECT_EQ(table[1]["differences"].Integer(), 1);
  EXPECT_NEAR(table[1]["observed_frequency"].Number(), 0.4, 1e-12);
  EXPECT_NEAR(table[1]["expected_frequency"].Number(), 1.8 / (2.8 * 2.8), 1e-6);
  EXPECT_NEAR(table[3]["observed_frequency"].Number(), 0.2, 1e-12);
  for (const char* old : {"SampleSize", "Mismatch", "Table", "ExpectedVariances"})
    EXPECT_FALSE(j.Has(old)) << old;
}

TEST(SizeChangeJson, GrowthDeclineHasItsTime) {
  SizeChangeOptions options;
  options.Model = kGrowthDecline;
  options.ThetaInitial = 1.0;
  options.ThetaFinal = 4.0;
  options.Tau = 12.0;
  const JsonValue j = JsonOf(options);
  EXPECT_EQ(j["model"].Text(), "Population Growth-Decline");
  EXPECT_NEAR(j["time_since_change"].Number(), 3.0, 1e-12);  // tau / theta final
  EXPECT_NEAR(j["theta_final"].Number(), 4.0, 1e-12);
  EXPECT_NEAR(j["tau"].Number(), 12.0, 1e-12);
}

TEST(SizeChangeJson, SpectrumAndSnRowsCarryTheirOwnKeys) {
  SizeChangeOptions spectrum;
  spectrum.AnalysisKind = kSpectrumKind;
  const JsonValue s = JsonOf(spectrum);
  ASSERT_EQ(s["table"].size(), 2u);
  // Observed 3 and 1 of 4; expected folded theta (1 + 1/4) and theta (1/2 + 1/3).
  EXPECT_EQ(s["table"][0]["frequency_class"].Integer(), 1);
  EXPECT_NEAR(s["table"][0]["observed_frequency"].Number(), 0.75, 1e-12);
  EXPECT_NEAR(s["table"][0]["expected_frequency"].Number(), 1.25 / (1.25 + 5.0 / 6), 1e-12);
  EXPECT_FALSE(s["table"][0].Has("differences"));

  SizeChangeOptions sn;
  sn.AnalysisKind = kSegregatingKind;
  const JsonValue t = JsonOf(sn);
  // Constant size: S2(t) / a1(2) and Sn(t) / a1(n) are theta = k at every time.
  const JsonValue& row = t["table"][10];
  EXPECT_NEAR(row["time"].Number(), 1.0, 1e-12);
  EXPECT_NEAR(row["expected_s2_per_a1"].Number(), 1.8, 1e-9);
  EXPECT_NEAR(row["expected_sn_per_a1"].Number(), 1.8, 1e-9);
  EXPECT_EQ(t["table_rows"].Integer(), static_cast<long long>(t["table"].size()));
}

}  // namespace
}  // namespace ovelt
