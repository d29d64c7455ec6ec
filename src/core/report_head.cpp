#include "core/report_head.h"

#include "core/net_sites.h"

namespace ovelt {

namespace {

constexpr const char* kLineEnd = "\r\n";

bool HasSet(const ActiveData& ad) { return ad.SelSet1 > 0 && ad.SelSet1 <= ad.SetCount(); }

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

std::string ReportHead(const ActiveData& ad, int32_t net_sites) {
  std::string head = kLineEnd;
  head += " Input Data File: " + ad.FilePath + kLineEnd;

  const std::string used = "    Number of sequences used: " + std::to_string(ad.SelCount1);
  bool all_used = true;
  if (HasSet(ad)) {
    const PoblacionSecuencias& set = ad.SequenceSets[static_cast<size_t>(ad.SelSet1)];
    head += " Population used: " + set.nombre() + kLineEnd;
    head += used + kLineEnd;
    all_used = set.max() == static_cast<double>(ad.SelCount1);
  } else {
    head += " Number of sequences: " + std::to_string(ad.TotalSeqs) + used + kLineEnd;
    all_used = ad.TotalSeqs == ad.SelCount1;
  }

  if (!all_used) {
    if (ad.SelCount1 < 10) {
      head += std::string("    Sequences used: ") + kLineEnd;
      for (int32_t seq = 1; seq <= ad.SelCount1; ++seq) {
        const auto s = static_cast<size_t>(seq);
        head += "       " + (s < ad.SelNames1.size() ? ad.SelNames1[s] : std::string()) + kLineEnd;
      }
    } else {
      std::vector<int32_t> numbers;
      if (ad.SelSeqNumbers1.size() > 1) {
        numbers.assign(ad.SelSeqNumbers1.begin() + 1, ad.SelSeqNumbers1.end());
      }
      head += "    Sequences used: " + CompactNumberList(numbers) + kLineEnd;
    }
  }

  const int32_t from = ad.Region.RegionFrom, to = ad.Region.RegionTo;
  const int32_t sites = to - from + 1;
  head += " Selected region: " + std::to_string(from) + "-" + std::to_string(to) +
          "   Number of sites: " + std::to_string(sites) + kLineEnd;
  if (ad.GapsInSets == 2) {
    head += std::string("    Sites with gaps in the complete data file were excluded") + kLineEnd;
  }
  if (ad.Analysis == 1) {
    const int32_t fixed = FixedGaps(ad);
    if (fixed > 0) {
      head += "    Number of sites (excluding fixed gaps / missing data): " +
              std::to_string(sites - fixed) + kLineEnd;
    }
  }
  head += " Total number of sites (excluding sites with gaps / missing data): " +
          std::to_string(net_sites) + kLineEnd;
  return head;
}

}  // namespace ovelt
