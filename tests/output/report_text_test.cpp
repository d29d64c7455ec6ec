// The text blocks of saved and session files, compared byte for byte with texts typed here.

#include <gtest/gtest.h>

#include "output/report_text.h"

namespace ovelt {
namespace {

const Platform::DateTime kWhen{2004, 3, 5, 14, 5, 9};
const std::string kRule74 =
    "--------------------------------------------------------------------------";

TEST(ReportText, RuleLiteralIsSeventyFourDashes) { EXPECT_EQ(kRule74.size(), 74u); }

TEST(ReportText, DateAndTime) {
  EXPECT_EQ(DateText(kWhen), "05 - March - 2004");
  EXPECT_EQ(TimeText(kWhen), "14:05:09");
}

TEST(ReportText, CommonOpening) {
  const std::string line1 =
      " Ovelt  Ver. 4.00.5                        05 - March - 2004  14:05:09";
  const std::string line2 =
      " =====================================================================";
  ASSERT_EQ(line1.size(), 70u);  // 19 + 24 blanks + 17 + 2 + 8
  ASSERT_EQ(line2.size(), 70u);
  EXPECT_EQ(CommonOpening(kWhen), line1 + "\r\n" + line2 + "\r\n\r\n\r\n");
}

TEST(ReportText, TitleBlockRuleMatchesTheTitleLine) {
  // "Gene Flow " is 10 characters: a blank and 9 dashes under it.
  EXPECT_EQ(TitleBlock("Gene Flow", ""), "Gene Flow \r\n ---------\r\n");
  EXPECT_EQ(TitleBlock("Gene Flow", "text"), "Gene Flow \r\n ---------\r\ntext\r\n");
}

// The labels of a result whose grid joins its cells with `separator` between rules of `rule`.
ResultLabels GridLabels(const std::string& separator = "  ", size_t rule = 74) {
  ResultLabels labels;
  labels.GridCellSeparator = separator;
  labels.GridRuleLength = rule;
  return labels;
}

TEST(ReportText, LabelsDefaultToTwoBlanksAndTheShortRule) {
  const ResultLabels labels;
  EXPECT_EQ(labels.GridCellSeparator, "  ");
  EXPECT_EQ(labels.GridRuleLength, 74u);
}

TEST(ReportText, GridAsTextJoinsCellsWithTwoBlanks) {
  OutputGrid grid;
  grid.Rows = {{"1", "25", "0.01000"}, {"2", "75", "0.02000"}};
  EXPECT_EQ(
      GridAsText(ResultLabels{}, "HEAD", grid),
      "\r\n" + kRule74 + "\r\n\r\nHEAD\r\n" + kRule74 + "\r\n1  25  0.01000\r\n2  75  0.02000\r\n");
}

TEST(ReportText, GridAsTextWithoutHead) {
  OutputGrid grid;
  grid.Rows = {{"a", "b"}};
  EXPECT_EQ(GridAsText(GridLabels(), "", grid),
            "\r\n" + kRule74 + "\r\n\r\n" + kRule74 + "\r\na  b\r\n");
}

TEST(ReportText, FunctionalRegionsJoinWithOneBlank) {
  OutputGrid grid;
  grid.Rows = {{"Exon", "120", "0.00100"}};
  EXPECT_EQ(GridAsText(GridLabels(" "), "H", grid),
            "\r\n" + kRule74 + "\r\n\r\nH\r\n" + kRule74 + "\r\nExon 120 0.00100\r\n");
}

TEST(ReportText, CodonUsageRuleIsLonger) {
  OutputGrid grid;
  const std::string rule82 = kRule74 + "--------";
  EXPECT_EQ(GridAsText(GridLabels("  ", 82), "H", grid),
            "\r\n" + rule82 + "\r\n\r\nH\r\n" + rule82 + "\r\n");
}

TEST(ReportText, SecondTableUsesItsColumnTitles) {
  OutputGrid grid;
  grid.ColumnTitles = {"Region", "Sites"};
  grid.Rows = {{"Intron", "40.00"}};
  EXPECT_EQ(SecondTableAsText(GridLabels(" "), grid),
            "\r\n" + kRule74 + "\r\n\r\nRegion Sites\r\n" + kRule74 + "\r\nIntron 40.00\r\n");
}

TEST(ReportText, GeneFlowHeads) {
  EXPECT_EQ(GeneFlowHead(true),
            " Population 1      Population 2          Hs        Ks        Kxy       Gst     "
            "DeltaSt   GammaSt     Nst       Fst       Dxy       Da");
  EXPECT_EQ(GeneFlowHead(false),
            " Population 1      Population 2          Hs        Ks        Kxy       Gst   "
            "GammaSt       Fst");
}

TEST(ReportText, GeneFlowRows) {
  GeneFlowTable table;
  EXPECT_EQ(GeneFlowAsText(table), "");
  table.WithSequenceMeasures = false;
  table.Rows = {{"North", "A population with a long name", {"0.12345", "1.50000"}}};
  const std::string rule87 = std::string(87, '-');
  // " " + 17-wide name + " " + 17-wide name (cut) + first value in 8 + " " + next value in 9.
  EXPECT_EQ(GeneFlowAsText(table), rule87 + "\r\n" + GeneFlowHead(false) + "\r\n" +
                                       " North             A population with 0.12345   1.50000"
                                       "\r\n");
}

TEST(ReportText, SessionSeparatorIsSeventySixCharacters) {
  const std::string separator = SessionSeparator();
  EXPECT_EQ(separator,
            "<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<<>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>\r\n\r\n");
  EXPECT_EQ(separator.find('\r'), 76u);
}

TEST(ReportText, SessionEndLine) {
  EXPECT_EQ(SessionEndLine(kWhen), " Ovelt Session Terminated on  05 - March - 2004  14:05:09\r\n");
}

}  // namespace
}  // namespace ovelt
