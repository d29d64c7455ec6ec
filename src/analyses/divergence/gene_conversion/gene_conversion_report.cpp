#include "analyses/divergence/gene_conversion/gene_conversion_report.h"

#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string Line(const std::string& text) {
  return text + kCrLf;
}

}  // namespace

std::string GeneConversionReport(const GeneConversionResult& r) {
  std::string t = kCrLf;
  t += Line(" Input Data File: " + r.FilePath);
  t += Line(" Selected region: " + StrNum(r.RegionFrom) + "-" + StrNum(r.RegionTo));
  t += Line("     Number of sites: " + StrNum(r.RegionTo - r.RegionFrom + 1));
  t += Line(" Total sites (excluding alignment gaps): " + StrNum(r.NetSites));
  if (r.GapsExcludedInFile)
    t += Line(" Sites with alignment gaps in the complete data file have been excluded");
  t += Line(" Population 1: " + r.Name1);
  t += Line("   Number of sequences: " + StrNum(r.N1));
  t += Line(" Population 2: " + r.Name2);
  t += Line("   Number of sequences: " + StrNum(r.N2));
  t += Line(" Average number of informative nucleotide sites per site, Psi: " +
            Format(r.Psi, "0.00000"));
  t += Line(" Number of sites with information: " + StrNum(r.SitesWithInformation));
  int32_t inside = 0;
  for (const ConversionTract& tract : r.Tracts)
    inside += tract.First >= r.RegionFrom && tract.Last <= r.RegionTo ? 1 : 0;
  t += Line(" Number of Gene Conversion tracts identified:  " + StrNum(inside));
  for (const ConversionTract& tract : r.Tracts) {
    if (tract.First < r.RegionFrom || tract.Last > r.RegionTo) continue;
    t += Line("     Line: " + r.LineName(tract) + " (population " +
              std::to_string(tract.Population) + ")" +
              ". Tract located between sites: " + StrNum(tract.First) + "-" + StrNum(tract.Last));
    t += Line("           Nucleotide distance (excluding gaps): " + StrNum(tract.NetLength));
  }
  return t;
}

std::vector<std::string> InformativeSiteTitles() {
  return {"Site", "Psi"};
}

std::vector<std::string> InformativeSiteRow(const InformativeSite& row) {
  return {Format(row.Site, "@@@@@"), Format(row.Psi, "0.00000")};
}

std::string InformativeSiteTextHead() {
  return " Site      Psi";
}

std::vector<std::string> ConversionWindowTitles() {
  return {"Window", "Midpoint", "Psi"};
}

std::vector<std::string> ConversionWindowRow(const ConversionWindow& row) {
  return {WindowCell(row.Window), Format(row.Window.Midpoint, "@@@@@"), Format(row.Psi, "0.00000")};
}

GraphData ConversionGraph(const ConversionWindows& windows) {
  GraphData graph;
  graph.GraphKind = kGraphConversion;
  graph.Table = WindowTable(windows.Capacity, 3);
  int32_t row = 0;
  for (const ConversionWindow& w : windows.Rows) {
    ++row;
    graph.Table.at(row, 1) = static_cast<float>(w.Window.Midpoint);
    graph.Table.at(row, 2) = static_cast<float>(w.Psi);
  }
  graph.Table.RowsUsed = row;
  graph.GraphRows = row;
  return graph;
}

}  // namespace ovelt
