#include "analyses/linkage/linkage_table.h"

#include "analyses/linkage/pair_tests.h"
#include "analyses/linkage/table_cells.h"
#include "core/line_end.h"
#include "core/report_head.h"
#include "output/format_mask.h"
#include "output/report_text.h"

namespace ovelt {

namespace {

constexpr const char* kFieldGap = "  ";

std::string SignedCell(double value) {
  const std::string text = ThreeDecimals(value);
  return text.front() == '-' ? text : " " + text;
}

// Fisher's P is a single-precision value and prints as one.
std::string FisherCell(const LinkagePairRow& row) {
  return ThreeDecimals(row.FisherP) + StarMark(row.FisherStars) +
         (row.FisherBonferroni ? "B" : " ");
}

std::string ChiSquareCell(const LinkagePairRow& row) {
  return ThreeDecimals(row.ChiSquare) + StarMark(row.ChiSquareStars) +
         (row.ChiSquareBonferroni ? "B" : " ");
}

}  // namespace

std::string LinkageTextHead(int tests) {
  switch (tests) {
    case 1:
      return "Site1  Site2   Dist     D       D'      R    Fisher";
    case 2:
      return "Site1  Site2   Dist     D       D'      R    Chi-sq";
    case 3:
      return "Site1  Site2   Dist     D       D'      R    Fisher     Chi-sq";
    default:
      return "Site1  Site2   Dist     D       D'      R";
  }
}

std::vector<std::string> LinkageGridTitles(int tests) {
  std::vector<std::string> titles{"Site1", "Site2", "Dist", "D", "D'", "R"};
  if (tests == 1 || tests == 3) titles.emplace_back("Fisher");
  if (tests == 2 || tests == 3) titles.emplace_back("Chi-sq");
  return titles;
}

std::vector<std::string> LinkageGridCells(const LinkagePairRow& row) {
  std::vector<std::string> cells{StrNum(row.Site1), StrNum(row.Site2), StrNum(row.Dist),
                                 SignedCell(row.D), SignedCell(row.DPrime), SignedCell(row.R)};
  if (row.HasFisher) cells.push_back(FisherCell(row));
  if (row.HasChiSquare) cells.push_back(ChiSquareCell(row));
  return cells;
}

std::string LinkageFileLine(const LinkagePairRow& row) {
  std::string line;
  line.reserve(80);
  AppendRightAlignedFive(line, row.Site1);
  line += kFieldGap;
  AppendRightAlignedFive(line, row.Site2);
  line += kFieldGap;
  AppendRightAlignedFive(line, row.Dist);
  for (const double value : {row.D, row.DPrime, row.R}) {
    line += kFieldGap;
    AppendThreeDecimals(line, value, true);
  }
  if (row.HasFisher) {
    line += kFieldGap;
    AppendThreeDecimals(line, row.FisherP);
    line += StarMark(row.FisherStars);
    line += row.FisherBonferroni ? 'B' : ' ';
  }
  if (row.HasChiSquare) {
    line += kFieldGap;
    AppendThreeDecimals(line, row.ChiSquare);
    line += StarMark(row.ChiSquareStars);
    line += row.ChiSquareBonferroni ? 'B' : ' ';
  }
  return line;
}

std::string LinkageFileHead(const LinkageResult& r, const Platform::DateTime& when) {
  std::string t = CommonOpening(when);
  t += std::string(" Linkage Disequilibrium") + kCrLf;
  t += std::string(" ----------------------") + kCrLf;
  t += RegionLine({r.RegionFrom, r.RegionTo}) + kCrLf;
  t += NetSitesLine(r.NetSites) + kCrLf;
  t += std::string(r.AllSites ? " Non-informative Polymorphic sites were considered"
                              : " Only Informative Polymorphic sites were considered") +
       kCrLf;
  if (r.ThreeOrFourVariants)
    t += std::string(" Sites segregating for three or four nucleotides were not considered") +
         kCrLf;
  t += " Number of polymorphic sites analyzed: " + StrNum(r.SitesAnalysed) + kCrLf;
  t += " Number of pairwise comparisons: " + StrNum(r.PairCount) + kCrLf;
  t += kCrLf;
  t += LinkageTextHead(r.Tests()) + kCrLf;
  t += kCrLf;
  return t;
}

}  // namespace ovelt
