#pragma once
// Gene conversion between two populations over one region (Betrán et al. 1997), in the order of
// a run: the informative sites, the tracts of each line, Psi site by site (the tract sites in a
// second pass), Psi of the region, and Psi along a sliding window when asked.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analyses/divergence/gene_conversion/conversion_tracts.h"
#include "analyses/polymorphism/windows/sliding_window.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

struct ConversionWindow {
  WindowBounds Window;
  double Psi = 0.0;  // 0 in a window without a net site

  template <class V>
  void Visit(V& v) const {
    Window.Visit(v);
    v.Number("psi", Psi);
  }
};

using ConversionWindows = WindowRun<ConversionWindow>;

// A row of the grid of informative sites.
struct InformativeSite {
  int32_t Site = 0;
  double Psi = 0.0;

  template <class V>
  void Visit(V& v) const {
    v.Integer("site", Site);
    v.Number("psi", Psi);
  }
};

struct GeneConversionResult {
  std::string FilePath;
  bool GapsExcludedInFile = false;
  int32_t RegionFrom = 0, RegionTo = 0;
  std::string Name1, Name2;
  int32_t N1 = 0, N2 = 0;
  std::vector<std::string> LineNames1{""}, LineNames2{""};  // index 0 unused
  int32_t NetSites = 0;  // sites of the region without a gap in either population
  double Psi = 0.0;
  int32_t SitesWithInformation = 0;
  std::vector<ConversionTract> Tracts;
  std::vector<double> PsiBySite;  // every site of the file, index 0 unused
  std::optional<ConversionWindows> Windows;

  [[nodiscard]] const std::string& LineName(const ConversionTract& tract) const {
    return (tract.Population == 1 ? LineNames1 : LineNames2)[static_cast<size_t>(tract.Line)];
  }
  // The sites of the region with Psi above 0 (the grid without a sliding window).
  [[nodiscard]] std::vector<InformativeSite> InformativeSites() const;

  template <class V>
  void Visit(V& v) const;
};

namespace gene_conversion_detail {

struct PopulationFields {
  std::string Name;
  int32_t Sequences = 0;
  template <class V>
  void Visit(V& v) const {
    v.Text("name", Name);
    v.Integer("sequences", Sequences);
  }
};

struct TractFields {
  ConversionTract Tract;
  std::string Name;
  template <class V>
  void Visit(V& v) const {
    v.Integer("population", Tract.Population);
    v.Integer("line", Tract.Line);
    v.Text("name", Name.substr(0, Name.find_last_not_of(' ') + 1));  // without its padding
    v.Integer("first", Tract.First);
    v.Integer("last", Tract.Last);
    v.Integer("net_length", Tract.NetLength);
  }
};

}  // namespace gene_conversion_detail

template <class V>
void GeneConversionResult::Visit(V& v) const {
  v.Integer("region_from", RegionFrom);
  v.Integer("region_to", RegionTo);
  v.Integer("sites", RegionTo - RegionFrom + 1);
  v.Integer("net_sites", NetSites);
  v.Bool("gaps_excluded_in_file", GapsExcludedInFile);
  v.Object("population1", gene_conversion_detail::PopulationFields{Name1, N1});
  v.Object("population2", gene_conversion_detail::PopulationFields{Name2, N2});
  v.Number("psi", Psi);
  v.Integer("sites_with_information", SitesWithInformation);
  std::vector<gene_conversion_detail::TractFields> tracts;
  for (const ConversionTract& t : Tracts) tracts.push_back({t, LineName(t)});
  v.Array("tracts", tracts);
  if (Windows) {
    v.Object("sliding_window", Windows);
  } else {
    v.Array("informative_sites", InformativeSites());
  }
}

// Over the region of `sel`, whose two selections are classified (`ClassifyFirst`,
// `ClassifySecond`).
[[nodiscard]] GeneConversionResult ComputeGeneConversion(
    const Selection& sel, const std::optional<SlidingWindowSpec>& window,
    const Progress& progress = {});

// Psi of each window: the mean of Psi over its sites without a gap in either population.
[[nodiscard]] ConversionWindows ComputeConversionWindows(const Selection& sel,
                                                         const std::vector<double>& psi_by_site,
                                                         int32_t from, int32_t to,
                                                         const SlidingWindowSpec& geometry,
                                                         const Progress& progress = {});

}  // namespace ovelt
