#include "core/report_head.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

const std::string kPath = " Input Data File: /data/sample.fas\r\n";

std::vector<std::string> Rows(int count, const std::string& row) {
  return std::vector<std::string>(static_cast<size_t>(count), row);
}

TEST(CompactNumberList, RunsAndSingles) {
  EXPECT_EQ(CompactNumberList({}), "");
  EXPECT_EQ(CompactNumberList({4}), "4");
  EXPECT_EQ(CompactNumberList({1, 2}), "1-2");
  EXPECT_EQ(CompactNumberList({1, 2, 3, 5, 7, 8, 9, 10, 11, 12}), "1-3 5 7-12");
  EXPECT_EQ(CompactNumberList({1, 2, 3, 4, 5, 6, 7, 8, 12}), "1-8 12");
  EXPECT_EQ(CompactNumberList({5, 4, 9}), "5 4 9");
}

TEST(ReportHead, AllSequencesWithoutASet) {
  ActiveData ad = MakeAlignment({"ACGT", "ACGA", "ACGA"});
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  const int32_t net = NetSites(sel, 1, 4);
  EXPECT_EQ(ReportHead(sel, net),
            "\r\n" + kPath +
                " Number of sequences: 3    Number of sequences used: 3\r\n"
                " Selected region: 1-4   Number of sites: 4\r\n"
                " Total number of sites (excluding sites with gaps / missing data): 4\r\n");
}

TEST(ReportHead, FewerThanTenUsedAreListedByName) {
  ActiveData ad = MakeAlignment(Rows(5, "ACGT"), {"alpha", "beta", "gamma", "delta", "epsilon"});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {2}), 1).has_value());
  // The head gives the region of the selection.
  Selection sel = SelectOneSet(ad, 0, {2, 3});
  EXPECT_EQ(ReportHead(sel, 2),
            "\r\n" + kPath +
                " Number of sequences: 5    Number of sequences used: 4\r\n"
                "    Sequences used: \r\n"
                "       alpha               \r\n"
                "       gamma               \r\n"
                "       delta               \r\n"
                "       epsilon             \r\n"
                " Selected region: 2-3   Number of sites: 2\r\n"
                " Total number of sites (excluding sites with gaps / missing data): 2\r\n");
}

TEST(ReportHead, TenOrMoreUsedAreListedAsRanges) {
  ActiveData ad = MakeAlignment(Rows(12, "ACGT"));
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {4, 6}), 1).has_value());
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  EXPECT_EQ(ReportHead(sel, 4),
            "\r\n" + kPath +
                " Number of sequences: 12    Number of sequences used: 10\r\n"
                "    Sequences used: 1-3 5 7-12\r\n"
                " Selected region: 1-4   Number of sites: 4\r\n"
                " Total number of sites (excluding sites with gaps / missing data): 4\r\n");
}

TEST(ReportHead, SetWithAnExcludedSequenceSaysHowManyAreUsed) {
  ActiveData ad = MakeAlignment(Rows(4, "ACGT"), {"one", "two", "three", "four"});
  test::AddSet(ad, "Pop1", {1, 2, 3});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {2}), 1).has_value());
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(ReportHead(sel, 4),
            "\r\n" + kPath +
                " Population used: Pop1\r\n"
                "    Number of sequences used: 2\r\n"
                "    Sequences used: \r\n"
                "       one                 \r\n"
                "       three               \r\n"
                " Selected region: 1-4   Number of sites: 4\r\n"
                " Total number of sites (excluding sites with gaps / missing data): 4\r\n");
}

TEST(ReportHead, SetFullyUsedListsNoSequence) {
  ActiveData ad = MakeAlignment(Rows(4, "ACGT"));
  test::AddSet(ad, "Pop1", {1, 2});
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(ReportHead(sel, 4),
            "\r\n" + kPath +
                " Population used: Pop1\r\n"
                "    Number of sequences used: 2\r\n"
                " Selected region: 1-4   Number of sites: 4\r\n"
                " Total number of sites (excluding sites with gaps / missing data): 4\r\n");
}

TEST(ReportHead, LargeSetListsFileNumbers) {
  ActiveData ad = MakeAlignment(Rows(14, "ACGT"));
  test::AddSet(ad, "Big", {14, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {5}), 1).has_value());
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  ASSERT_EQ(sel.SelCount1, 10);
  EXPECT_NE(ReportHead(sel, 4).find("    Sequences used: 14 1-4 6-10\r\n"), std::string::npos);
}

TEST(ReportHead, GapsInSets2AndFixedGapsOfPolymorphicSites) {
  // Site 2 is all gaps (a fixed gap), site 3 has a gap in one sequence.
  ActiveData ad = MakeAlignment({"A-CT", "A-GT", "A--T"});
  ad.GapsInSets = 2;
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  const int32_t net = NetSites(sel, 1, 4);
  ASSERT_EQ(net, 2);
  // The polymorphic-sites report asks for the sites without the fixed gaps.
  EXPECT_EQ(ReportHead(sel, net, true),
            "\r\n" + kPath +
                " Number of sequences: 3    Number of sequences used: 3\r\n"
                " Selected region: 1-4   Number of sites: 4\r\n"
                "    Sites with gaps in the complete data file were excluded\r\n"
                "    Number of sites (excluding fixed gaps / missing data): 3\r\n"
                " Total number of sites (excluding sites with gaps / missing data): 2\r\n");
  // The other reports give no count of fixed gaps.
  EXPECT_EQ(ReportHead(sel, net).find("fixed gaps"), std::string::npos);
}

TEST(ReportHead, TruncatedEqualNamesStayEqual) {
  // Names longer than 20 characters are cut; two of them become the same and are both listed.
  ActiveData ad = MakeAlignment(
      Rows(3, "AC"), {"Drosophila_simulans_line_A", "Drosophila_simulans_line_B", "other"});
  EXPECT_EQ(ad.RawNames[1], "Drosophila_simulans_");
  EXPECT_EQ(ad.RawNames[1], ad.RawNames[2]);
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {3}), 1).has_value());
  Selection sel = SelectOneSet(ad, 0, ad.Region);
  EXPECT_NE(
      ReportHead(sel, 2).find("       Drosophila_simulans_\r\n       Drosophila_simulans_\r\n"),
      std::string::npos);
}

}  // namespace
}  // namespace ovelt
