// The JSON of the two overviews, read back: the hand-worked alignment of size_change_fixture.h,
// counts as integers, the keys the other commands give the same quantities, null for what a
// sample cannot give.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "analyses/polymorphism/overview/overview_options.h"
#include "polymorphism/run_fixture.h"
#include "polymorphism/size_change_fixture.h"
#include "support/json_reader.h"

namespace ovelt {
namespace {

using testing::JsonValue;

template <class Options>
JsonValue JsonOf(CommandId id, ActiveData& ad, const Options& options) {
  testing::ScriptedPlatform ui;
  OutputChannel out{ui};
  const RunOutcome outcome = test::RunWith(id, ad, out, ui, options, true);
  EXPECT_TRUE(outcome.Stands);
  return JsonValue::Parse(outcome.Json);
}

TEST(OverviewJson, TheFiveSequencesByHand) {
  ActiveData ad = test::MakeAlignment(test::kFiveSequences);
  const JsonValue j = JsonOf(CommandId::kIntraspecific, ad, OverviewOptions{});
  EXPECT_EQ(j.Keys().front(), "analysis");
  EXPECT_EQ(j["analysis"].Text(), "DNA Polymorphism Analysis");
  for (const auto& [key, count] : std::vector<std::pair<std::string, long long>>{
           {"region_from", 1}, {"region_to", 8}, {"sequences", 5}, {"sites", 8},
           {"net_sites", 7}, {"segregating_sites", 4}, {"mutations", 4}, {"haplotypes", 5},
           {"gc_sites", 7}}) {
    ASSERT_TRUE(j[key].IsInteger()) << key;
    EXPECT_EQ(j[key].Integer(), count) << key;
  }
  EXPECT_FALSE(j["use_mutations"].Bool());
  // G or C among the 35 nucleotides of the 7 sites without gaps: 3 + 4 + 3 + 3 + 4.
  EXPECT_NEAR(j["gc_content"].Number(), 17.0 / 35, 1e-12);
  // Five haplotypes of one sequence each: Hd = 5/4 (1 - 1/5) = 1, VarHd = 2/20 (0.2 - 0.04).
  EXPECT_NEAR(j["hd"].Number(), 1.0, 1e-12);
  EXPECT_NEAR(j["var_hd"].Number(), 0.016, 1e-12);
  // 18 differences over 10 pairs; L = 7.
  EXPECT_NEAR(j["k"].Number(), 1.8, 1e-12);
  EXPECT_NEAR(j["pi"].Number(), 1.8 / 7, 1e-12);
  EXPECT_TRUE(j["var_pi"].IsNumber());
  const double a1 = 1 + 0.5 + 1.0 / 3 + 0.25;
  EXPECT_NEAR(j["theta_sequence"].Number(), 4 / a1, 1e-12);
  EXPECT_NEAR(j["theta_site"].Number(), 4 / a1 / 7, 1e-12);
  // Tajima's D (Tajima 1989) for n = 5, S = 4, k = 1.8.
  const double a2 = 1 + 0.25 + 1.0 / 9 + 1.0 / 16;
  const double e1 = (0.5 - 1 / a1) / a1;
  const double e2 = (66.0 / 180 - 7 / (5 * a1) + a2 / (a1 * a1)) / (a1 * a1 + a2);
  EXPECT_NEAR(j["tajima_d"].Number(), (1.8 - 4 / a1) / std::sqrt(e1 * 4 + e2 * 12), 1e-9);
  EXPECT_TRUE(j["significance"].Text().empty());
  EXPECT_TRUE(j["d_star"].IsNumber());
  // The mark without the blanks that pad the report's column.
  EXPECT_EQ(j["d_star_significance"].Text().find(' '), std::string::npos);
  // Fs (Fu 1997) with h = n = 5, theta = k: P(K = 5) = theta^4 / ((theta + 1) ... (theta + 4)).
  const double p5 = std::pow(1.8, 4) / (2.8 * 3.8 * 4.8 * 5.8);
  EXPECT_NEAR(j["p_equal"].Number(), p5, 1e-12);
  EXPECT_NEAR(j["fs"].Number(), std::log(p5) - std::log(1 - p5), 1e-9);
  // No coding region: neither coding G+C nor codon changes.
  for (const char* key : {"gc_content_coding", "gc_sites_coding", "synonymous_mutations",
                          "nonsynonymous_mutations"})
    EXPECT_TRUE(j[key].IsNull()) << key;
  for (const char* old : {"SampleSize", "Hd", "GC", "TajimaD"}) EXPECT_FALSE(j.Has(old)) << old;
}

TEST(OverviewJson, FewerThanFourSequencesHaveNoTests) {
  ActiveData ad = test::MakeAlignment({"ACGT", "ACTT", "ACTT"});
  const JsonValue j = JsonOf(CommandId::kIntraspecific, ad, OverviewOptions{});
  for (const char* key : {"tajima_d", "d_star", "f_star"}) EXPECT_TRUE(j[key].IsNull()) << key;
  EXPECT_EQ(j["significance"].Text(), "n.d.");
  // Three sequences still give Hd: 3/2 (1 - 1/9 - 4/9) for haplotypes of one and two.
  EXPECT_NEAR(j["hd"].Number(), 2.0 / 3, 1e-12);
}

TEST(MultiDomainJson, RowsWithASetOfOneSequence) {
  ActiveData ad = test::MakeAlignment(test::kFiveSequences);
  test::AddSet(ad, "Lone", {3});
  MultiDomainOptions options;
  options.Domains = "A=1-4;Gap=7";
  const JsonValue j = JsonOf(CommandId::kMultiDomain, ad, options);
  EXPECT_EQ(j["analysis"].Text(), "Multiblock Analysis. Provisional");
  EXPECT_TRUE(j["data_file"].kind() == JsonValue::Kind::kString);
  const JsonValue& rows = j["domains"];
  ASSERT_EQ(rows.size(), 4u);  // A and Gap, each for all sequences and for Lone
  EXPECT_EQ(rows[0]["domain"].Text(), "A");
  EXPECT_EQ(rows[0]["sequence_set"].Text(), "All_Seqs");
  EXPECT_EQ(rows[0]["domain_sites"].Integer(), 4);
  // Domain A, all sequences: sites 1, 2 (singletons, 0.4 each) and 4 (2 : 3, 0.6).
  EXPECT_EQ(rows[0]["segregating_sites"].Integer(), 3);
  EXPECT_NEAR(rows[0]["k"].Number(), 1.4, 1e-12);
  EXPECT_NEAR(rows[0]["pi"].Number(), 1.4 / 4, 1e-12);
  // One sequence: one haplotype, and nothing that needs a pair.
  const JsonValue& lone = rows[1];
  EXPECT_EQ(lone["sequence_set"].Text(), "Lone");
  EXPECT_EQ(lone["sequences"].Integer(), 1);
  EXPECT_EQ(lone["haplotypes"].Integer(), 1);
  for (const char* key : {"hd", "var_hd", "k", "pi", "var_pi", "theta_sequence", "theta_site",
                          "tajima_d", "fs", "strobeck_s"})
    EXPECT_TRUE(lone[key].IsNull()) << key;
  // The domain of the gap site alone: no net site, no Pi nor theta per site; k is a sum.
  const JsonValue& gap = rows[2];
  EXPECT_EQ(gap["domain"].Text(), "Gap");
  EXPECT_EQ(gap["net_sites"].Integer(), 0);
  for (const char* key : {"pi", "var_pi", "theta_site", "gc_content"})
    EXPECT_TRUE(gap[key].IsNull()) << key;
  EXPECT_EQ(gap["k"].Number(), 0.0);
  EXPECT_EQ(gap["theta_sequence"].Number(), 0.0);
}

}  // namespace
}  // namespace ovelt
