#include "core/report_head.h"

#include "core/line_end.h"
#include "core/net_sites.h"

namespace ovelt {

namespace {

bool HasSet(const Selection& sel) {
  return sel.SelSet1 > 0 && sel.SelSet1 <= sel.data().SetCount();
}

}  // namespace

std::string CompactNumberList(const std::vector<int32_t>& numbers) {
  std::string text;
  size_t i = 0;
  while (i < numbers.size()) {
    size_t j = i;
    while (j + 1 < numbers.size() && numbers[j + 1] == numbers[j] + 1) ++j;
    if (!text.empty()) text += ' ';
    text += std::to_string(numbers[i]);
    if (j > i) text += "-" + std::to_string(numbers[j]);
    i = j + 1;
  }
  return text;
}

std::string RegionLine(const RegionSelection& region) {
  return " Selected region: " + std::to_string(region.RegionFrom) + "-" +
         std::to_string(region.RegionTo) +
         "   Number of sites: " + std::to_string(region.RegionTo - region.RegionFrom + 1);
}

std::string NetSitesLine(int32_t net_sites) {
  return " Total number of sites (excluding sites with gaps / missing data): " +
         std::to_string(net_sites);
}

std::string ReportHead(const Selection& sel, int32_t net_sites, bool with_fixed_gaps) {
  const ActiveData& ad = sel.data();
  std::string head = kCrLf;
  head += " Input Data File: " + ad.FilePath + kCrLf;

  const std::string used = "    Number of sequences used: " + std::to_string(sel.SelCount1);
  bool all_used = true;
  if (HasSet(sel)) {
    const PoblacionSecuencias& set = ad.SequenceSets[static_cast<size_t>(sel.SelSet1)];
    head += " Population used: " + set.nombre() + kCrLf;
    head += used + kCrLf;
    all_used = set.max() == static_cast<double>(sel.SelCount1);
  } else {
    head += " Number of sequences: " + std::to_string(ad.TotalSeqs) + used + kCrLf;
    all_used = ad.TotalSeqs == sel.SelCount1;
  }

  if (!all_used) {
    if (sel.SelCount1 < 10) {
      head += std::string("    Sequences used: ") + kCrLf;
      for (int32_t seq = 1; seq <= sel.SelCount1; ++seq) {
        const auto s = static_cast<size_t>(seq);
        head += "       " + (s < sel.SelNames1.size() ? sel.SelNames1[s] : std::string()) + kCrLf;
      }
    } else {
      std::vector<int32_t> numbers;
      if (sel.SelSeqNumbers1.size() > 1) {
        numbers.assign(sel.SelSeqNumbers1.begin() + 1, sel.SelSeqNumbers1.end());
      }
      head += "    Sequences used: " + CompactNumberList(numbers) + kCrLf;
    }
  }

  const int32_t sites = sel.Region.RegionTo - sel.Region.RegionFrom + 1;
  head += RegionLine(sel.Region) + kCrLf;
  if (ad.GapsInSets == 2) {
    head += std::string("    Sites with gaps in the complete data file were excluded") + kCrLf;
  }
  if (with_fixed_gaps) {
    const int32_t fixed = FixedGaps(sel);
    if (fixed > 0) {
      head += "    Number of sites (excluding fixed gaps / missing data): " +
              std::to_string(sites - fixed) + kCrLf;
    }
  }
  head += NetSitesLine(net_sites) + kCrLf;
  return head;
}

}  // namespace ovelt
