#pragma once
// Builds an ActiveData from a few rows of cells, the way an open leaves it: file layer, site
// classes over all sequences, included layer sharing the file's cells, diversities, coding
// tables at their defaults, region 1..NumSites.

#include <memory>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/selection.h"
#include "core/coding_regions.h"
#include "core/sequence_sets.h"
#include "core/site_scan.h"

namespace ovelt::test {

inline ActiveData MakeAlignment(const std::vector<std::string>& rows,
                                std::vector<std::string> names = {}) {
  ActiveData ad;
  ad.FilePath = "/data/sample.fas";
  ad.FileName = "sample.fas";
  ad.NumSites = rows.empty() ? 0 : static_cast<int32_t>(rows[0].size());
  ad.RawMatrix.set_sites(ad.NumSites);
  for (const auto& row : rows) ad.RawMatrix.append_sequence(row.data());
  ad.NumSeqs = static_cast<int32_t>(rows.size());

  ClassifyAllSites(ad);
  ad.TotalSeqs = static_cast<int16_t>(ad.NumSeqs);
  ad.RawSiteClass = ad.SiteClass;

  ad.SeqIncluded.assign(rows.size() + 1, true);
  ad.SeqIncluded[0] = false;
  ad.RawNames = {""};
  for (size_t i = 0; i < rows.size(); ++i) {
    const std::string name = i < names.size() ? names[i] : "seq" + std::to_string(i + 1);
    ad.RawNames.push_back(FixedName(name));
  }
  ad.GapsInSets = 1;
  ad.Format = FormatAttributes{};
  ResetCodingState(ad);
  ad.OpenFiles = 1;

  ad.IncMatrix = ad.RawMatrix;
  ad.IncNames = ad.RawNames;
  ComputeSiteDiversity(ad);
  RebuildCodingTables(ad);
  ad.Region = {1, ad.NumSites};
  return ad;
}

// A selection that keeps alive the data it was made from, so that a test can hold it alone.
struct OwnedSelection : Selection {
  std::shared_ptr<const ActiveData> Owner;
};

// The selection of `set` (0: all included sequences) of `data` over `region` (default: all
// sites), the data kept with it.
inline OwnedSelection SelectedFrom(ActiveData data, int16_t set = 0,
                                   RegionSelection region = {1, 0}) {
  auto owner = std::make_shared<const ActiveData>(std::move(data));
  if (region.RegionTo == 0) region.RegionTo = owner->NumSites;
  OwnedSelection selected;
  static_cast<Selection&>(selected) = SelectOneSet(*owner, set, region);
  selected.Owner = owner;
  return selected;
}

// Appends an active set with the given file sequence numbers.
inline void AddSet(ActiveData& ad, const std::string& name, const std::vector<int>& members) {
  PoblacionSecuencias set;
  set.nombrePop(name);
  int index = 0;
  for (const int member : members) set.secuenciaPop(++index, member);
  ad.SequenceSets.push_back(set);
}

// Tick flags 1..TotalSeqs with the listed sequences unticked.
inline std::vector<bool> TicksWithout(const ActiveData& ad, const std::vector<int>& excluded) {
  std::vector<bool> ticks(static_cast<size_t>(ad.TotalSeqs) + 1, true);
  ticks[0] = false;
  for (const int seq : excluded) ticks[static_cast<size_t>(seq)] = false;
  return ticks;
}

}  // namespace ovelt::test
