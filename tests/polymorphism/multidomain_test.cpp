#include "analyses/polymorphism/overview/domain_definition.h"
#include "analyses/polymorphism/overview/multidomain_table.h"
#include "analyses/polymorphism/overview/overview_options.h"
#include "analyses/polymorphism/overview/overview_report.h"
#include "analyses/polymorphism/overview/overview_stats.h"

#include <gtest/gtest.h>

#include "core/report_head.h"
#include "polymorphism/run_fixture.h"
#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

struct Bench {
  testing::ScriptedPlatform ui;
  OutputChannel out{ui};
  ActiveData ad = test::MakeAlignment(test::kFiveSequences);
  bool Run(const MultiDomainOptions& options) {
    return test::RunWith(CommandId::kMultiDomain, ad, out, ui, options).Stands;
  }
};

// A row of the table worked apart from the command: the data through the domain's `sites`, the
// sequences of `set` (0: all included) over all of them.
MultiDomainRow RowOf(const ActiveData& ad, const std::string& domain,
                     const std::vector<int32_t>& sites, int16_t set) {
  const ActiveData part = DomainData(ad, sites);
  const Selection sel = SelectOneSet(part, set, {1, part.NumSites});
  MultiDomainRow row;
  row.DataFile = ad.FileName;
  row.Population = set == 0 ? std::string(kAllSequencesSet)
                            : ad.SequenceSets[static_cast<size_t>(set)].nombre();
  row.Region = domain;
  row.SitesRegion = static_cast<int32_t>(sites.size());
  row.Stats = ComputeOverview(sel, 1, part.NumSites, false);
  return row;
}

TEST(ParseDomains, NamesAndRanges) {
  const auto domains = ParseDomains("Exon1=1-3,6; Intron = 4-5,5,8", 8);
  ASSERT_TRUE(domains);
  ASSERT_EQ(domains->size(), 2u);
  EXPECT_EQ((*domains)[0].Name, "Exon1");
  EXPECT_EQ((*domains)[0].Sites, (std::vector<int32_t>{1, 2, 3, 6}));
  EXPECT_EQ((*domains)[1].Name, "Intron");
  EXPECT_EQ((*domains)[1].Sites, (std::vector<int32_t>{4, 5, 8}));
  EXPECT_FALSE(ParseDomains("A=1-9", 8));
  EXPECT_FALSE(ParseDomains("A=3-2", 8));
  EXPECT_FALSE(ParseDomains("=1-2", 8));
  EXPECT_FALSE(ParseDomains("A:1-2", 8));
  EXPECT_FALSE(ParseDomains("A=1-x", 8));
}

TEST(DomainData, AContiguousDomainGivesTheStatisticsOfItsRegion) {
  // Second route: the domain as a data set of its own against the same sites as a region.
  auto whole = test::SelectedAlignment(test::kFiveSequences);
  const OverviewStats direct = ComputeOverview(whole, 3, 7, false);
  ActiveData domain = DomainData(test::MakeAlignment(test::kFiveSequences), {3, 4, 5, 6, 7});
  const Selection part = SelectOneSet(domain, 0, {1, domain.NumSites});
  const OverviewStats through = ComputeOverview(part, 1, domain.NumSites, false);
  EXPECT_EQ(through.NetSites, direct.NetSites);
  EXPECT_EQ(through.SegSites, direct.SegSites);
  EXPECT_EQ(through.Haplotypes, direct.Haplotypes);
  EXPECT_DOUBLE_EQ(through.K.value(), direct.K.value());
  EXPECT_DOUBLE_EQ(through.Hd.value(), direct.Hd.value());
  EXPECT_DOUBLE_EQ(through.VarPi.value(), direct.VarPi.value());
  EXPECT_DOUBLE_EQ(through.Gc.Total.value().Content, direct.Gc.Total.value().Content);
}

TEST(MultiDomain, RowsForEveryDomainAndSet) {
  Bench b;
  test::AddSet(b.ad, "North", {1, 2, 3});
  test::AddSet(b.ad, "South", {4, 5});
  MultiDomainOptions options;
  options.Domains = "A=1-4;B=5-8";
  ASSERT_TRUE(b.Run(options));
  // Domain by domain, all sequences and then each set.
  const std::vector<MultiDomainRow> rows = {
      RowOf(b.ad, "A", {1, 2, 3, 4}, 0), RowOf(b.ad, "A", {1, 2, 3, 4}, 1),
      RowOf(b.ad, "A", {1, 2, 3, 4}, 2), RowOf(b.ad, "B", {5, 6, 7, 8}, 0),
      RowOf(b.ad, "B", {5, 6, 7, 8}, 1), RowOf(b.ad, "B", {5, 6, 7, 8}, 2)};
  ASSERT_EQ(b.out.Grid1.Rows.size(), rows.size());
  for (size_t i = 0; i < rows.size(); ++i)
    EXPECT_EQ(b.out.Grid1.Rows[i], MultiDomainCells(rows[i])) << "row " << i;
  EXPECT_EQ(rows[0].Population, "All_Seqs");
  EXPECT_EQ(rows[1].Population, "North");
  EXPECT_EQ(rows[2].Population, "South");
  // Domain A, all sequences: sites 1, 2 (singletons, 0.4 each) and 4 (2 : 3, 0.6).
  EXPECT_EQ(rows[0].Stats.SegSites, 3);
  EXPECT_NEAR(rows[0].Stats.K.value(), 1.4, 1e-12);
  // Domain A, North (seqs 1-3): site 2 A G G and site 4 G G A: k = 2/3 + 2/3.
  EXPECT_NEAR(rows[1].Stats.K.value(), 4.0 / 3.0, 1e-12);
  // Domain B holds the gap site 7: four net sites of its four.
  EXPECT_EQ(rows[3].Stats.Sites, 4);
  EXPECT_EQ(rows[3].Stats.NetSites, 3);
  // The domains typed in the dialog serve the run only: the file's domains stay as they were.
  EXPECT_TRUE(b.ad.Domains.empty());
  EXPECT_EQ(b.out.ResultCode, 33);
  EXPECT_EQ(b.out.Grid1.ColumnTitles, MultiDomainShortHeads());
  EXPECT_EQ(b.out.Grid1.Rows[0][0], "sample.fas     ");
  EXPECT_EQ(b.out.Grid1.Rows[0][1], "All_Seqs       ");
  EXPECT_EQ(b.out.Grid1.Rows[0][2], "            A");
  EXPECT_EQ(b.out.Grid1.Rows[3][2], "            B");
  EXPECT_EQ(b.out.Grid1.Rows[0][16], "1.400");
  EXPECT_EQ(b.out.Grid1.Rows[0][17], "n.a.");
  EXPECT_EQ(b.out.TextBuffer.substr(0, 30), "DataFile  Population  Domain  ");
}

TEST(MultiDomain, TheFilesDomainsServeWhenNoneIsTyped) {
  Bench b;
  b.ad.Domains = {{"Left", {1, 2, 3, 4}}, {"Right", {5, 6, 7, 8}}};
  ASSERT_TRUE(b.Run(MultiDomainOptions{}));
  ASSERT_EQ(b.out.Grid1.Rows.size(), 2u);
  EXPECT_EQ(b.out.Grid1.Rows[0], MultiDomainCells(RowOf(b.ad, "Left", {1, 2, 3, 4}, 0)));
  EXPECT_EQ(b.out.Grid1.Rows[1], MultiDomainCells(RowOf(b.ad, "Right", {5, 6, 7, 8}, 0)));
  EXPECT_EQ(b.ad.Domains.size(), 2u);
}

TEST(MultiDomain, DomainOfOnlyGapSites) {
  Bench b;
  MultiDomainOptions options;
  options.Domains = "Gap=7";
  ASSERT_TRUE(b.Run(options));
  ASSERT_EQ(b.out.Grid1.Rows.size(), 1u);
  const MultiDomainRow gap = RowOf(b.ad, "Gap", {7}, 0);
  EXPECT_EQ(gap.Stats.NetSites, 0);
  const std::vector<std::string>& cells = b.out.Grid1.Rows[0];
  EXPECT_EQ(cells, MultiDomainCells(gap));
  EXPECT_EQ(cells[6], "      0");
  EXPECT_EQ(cells[19], "   n.d.");
  EXPECT_EQ(cells[20], "n.d.");
  EXPECT_EQ(cells[21], "   n.d.");
  EXPECT_EQ(cells[23], "   n.d.");

  // Without the sites with gaps the domain keeps no site at all.
  Bench without;
  options.IncludeGapSites = false;
  ASSERT_TRUE(without.Run(options));
  ASSERT_EQ(without.out.Grid1.Rows.size(), 1u);
  MultiDomainRow empty = RowOf(without.ad, "Gap", {}, 0);
  empty.SitesRegion = 1;  // the domain as typed holds one site
  EXPECT_EQ(empty.Stats.Sites, 0);
  EXPECT_EQ(without.out.Grid1.Rows[0], MultiDomainCells(empty));
  EXPECT_EQ(without.out.Grid1.Rows[0][5], "      0");
  EXPECT_EQ(without.out.Grid1.Rows[0][19], "   n.d.");
}

TEST(MultiDomain, SetOfOneSequenceHasNoHaplotypeDiversity) {
  Bench b;
  test::AddSet(b.ad, "Lone", {3});
  ASSERT_TRUE(b.Run(MultiDomainOptions{}));
  ASSERT_EQ(b.out.Grid1.Rows.size(), 2u);
  // No domain: the region is the one domain.
  const std::vector<int32_t> all = {1, 2, 3, 4, 5, 6, 7, 8};
  EXPECT_EQ(b.out.Grid1.Rows[0], MultiDomainCells(RowOf(b.ad, "1-8", all, 0)));
  EXPECT_EQ(b.out.Grid1.Rows[1], MultiDomainCells(RowOf(b.ad, "1-8", all, 1)));
  EXPECT_EQ(b.out.Grid1.Rows[0][2], "          1-8");
  EXPECT_EQ(b.out.Grid1.Rows[1][1], "Lone           ");
  EXPECT_EQ(b.out.Grid1.Rows[1][10], "n.d.");
  EXPECT_EQ(b.out.Grid1.Rows[0][10], "1.000");
}

TEST(MultiDomain, MalformedDomainsKeepTheDialogOpen) {
  Bench b;
  MultiDomainOptions options;
  options.Domains = "A=1-99";
  EXPECT_FALSE(b.Run(options));
  EXPECT_EQ(b.out.ReopenDialog, 1);
  ASSERT_EQ(b.ui.Boxes.size(), 1u);
  EXPECT_EQ(b.ui.Boxes[0].Text, " Invalid Selection ");
}

TEST(MultiDomain, NumberOfDomainsTakesTheFirstOnes) {
  Bench b;
  MultiDomainOptions options;
  options.Domains = "A=1-2;B=3-4;C=5-6";
  options.NumberOfDomains = 2;
  ASSERT_TRUE(b.Run(options));
  ASSERT_EQ(b.out.Grid1.Rows.size(), 2u);
  EXPECT_EQ(b.out.Grid1.Rows[1], MultiDomainCells(RowOf(b.ad, "B", {3, 4}, 0)));
  EXPECT_EQ(b.out.Grid1.Rows[1][2], "            B");
}

TEST(TestCell, SignsLineUp) {
  NeutralityValue v;
  v.Value = 0.5;
  EXPECT_EQ(TestCell(v), " 0.5000");
  v.Value = -0.5;
  EXPECT_EQ(TestCell(v), "-0.5000");
}

TEST(OverviewRun, ReportAndChecks) {
  Bench b;
  ASSERT_TRUE(
      test::RunWith(CommandId::kIntraspecific, b.ad, b.out, b.ui, OverviewOptions{}).Stands);
  const Selection sel = SelectOneSet(b.ad, 0, {1, 8});
  const OverviewStats stats = ComputeOverview(sel, 1, 8, false);
  EXPECT_EQ(b.out.TextBuffer, ReportHead(sel, stats.NetSites) + OverviewReportText(stats));
  EXPECT_EQ(b.out.ResultCode, 24);
  EXPECT_EQ(b.out.TextShown, 1);
  EXPECT_NE(b.out.TextBuffer.find(" Total number of sites (excluding sites with gaps / missing "
                                  "data): 7\r\n Number of variable sites, S: 4\r\n"),
            std::string::npos);
  EXPECT_EQ(stats.Haplotypes, 5);

  Bench region;
  OverviewOptions bad;
  bad.RegionFrom = 0;
  EXPECT_FALSE(
      test::RunWith(CommandId::kIntraspecific, region.ad, region.out, region.ui, bad).Stands);
  EXPECT_EQ(region.ui.Boxes[0].Text, " Invalid Selection ");
}

}  // namespace
}  // namespace ovelt
