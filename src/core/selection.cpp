#include "core/selection.h"

#include <algorithm>
#include <utility>

#include "core/site_class.h"
#include "core/site_diversity.h"

namespace ovelt {

namespace {

struct SelectionSlot {
  SeqMatrix& matrix;
  std::vector<std::string>& names;
  int32_t& count;
  std::vector<int32_t>* numbers;  // file sequence numbers, kept for the first selection only
};

// File sequence numbers of the included sequences, in file order.
std::vector<int32_t> IncludedNumbers(const ActiveData& ad) {
  std::vector<int32_t> numbers{0};
  const auto total = static_cast<int32_t>(ad.SeqIncluded.size()) - 1;
  for (int32_t seq = 1; seq <= total; ++seq) {
    if (ad.SeqIncluded[static_cast<size_t>(seq)]) numbers.push_back(seq);
  }
  return numbers;
}

// Included members of set `set`, in the set's order. An index that names no set gives an empty
// selection, which the minimum-sequences check then refuses.
std::vector<int32_t> SetNumbers(const ActiveData& ad, int16_t set) {
  std::vector<int32_t> numbers{0};
  if (set > ad.SetCount()) return numbers;
  const int32_t total =
      std::min<int32_t>(ad.RawMatrix.seqs(), static_cast<int32_t>(ad.SeqIncluded.size()) - 1);
  for (const double member : ad.SequenceSets[static_cast<size_t>(set)].members()) {
    const auto seq = static_cast<int32_t>(member);
    if (seq < 1 || seq > total) continue;
    if (!ad.SeqIncluded[static_cast<size_t>(seq)]) continue;
    numbers.push_back(seq);
  }
  return numbers;
}

void Fill(const ActiveData& ad, int16_t set, SelectionSlot slot) {
  if (set <= 0) {
    slot.matrix = ad.IncMatrix;
    slot.names = ad.IncNames;
    slot.count = ad.NumSeqs;
    if (slot.numbers != nullptr) *slot.numbers = IncludedNumbers(ad);
    return;
  }
  std::vector<int32_t> numbers = SetNumbers(ad, set);
  SeqMatrix matrix;
  matrix.set_sites(ad.RawMatrix.sites());
  matrix.reserve_sequences(static_cast<int64_t>(numbers.size()) - 1);
  std::vector<std::string> names{""};
  for (size_t i = 1; i < numbers.size(); ++i) {
    matrix.append_sequence(ad.RawMatrix.sequence(numbers[i]));
    const auto name_index = static_cast<size_t>(numbers[i]);
    names.push_back(name_index < ad.RawNames.size() ? ad.RawNames[name_index] : FixedName(""));
  }
  slot.matrix = std::move(matrix);
  slot.names = std::move(names);
  slot.count = static_cast<int32_t>(numbers.size()) - 1;
  if (slot.numbers != nullptr) *slot.numbers = std::move(numbers);
}

SelectionSlot First(Selection& sel) {
  return {sel.SelMatrix1, sel.SelNames1, sel.SelCount1, &sel.SelSeqNumbers1};
}

Selection Begin(const ActiveData& ad, RegionSelection region) {
  Selection sel;
  sel.Data = &ad;
  sel.Region = region;
  sel.SelSites = ad.NumSites;
  return sel;
}

}  // namespace

Selection SelectOneSet(const ActiveData& ad, int16_t set, RegionSelection region) {
  Selection sel = Begin(ad, region);
  sel.SelSet1 = set;
  Fill(ad, set, First(sel));
  if (set <= 0) {
    sel.SelSiteClass1 = ad.SiteClass;
    sel.SelSiteDiversity1 = ad.SiteDiversity;
  } else {
    ClassifyFirst(sel);
  }
  sel.SelOutCount = sel.SelCount1;
  return sel;
}

Selection SelectTwoSets(const ActiveData& ad, int16_t set1, int16_t set2, RegionSelection region) {
  Selection sel = Begin(ad, region);
  sel.SelSet1 = set1;
  sel.SelSet2 = set2;
  Fill(ad, set1, First(sel));
  Fill(ad, set2, {sel.SelMatrix2, sel.SelNames2, sel.SelCount2, nullptr});
  sel.SelOutCount = sel.SelCount1;
  return sel;
}

Selection SelectFirstSetOnly(const ActiveData& ad, int16_t set1, RegionSelection region) {
  Selection sel = Begin(ad, region);
  sel.SelSet1 = set1;
  Fill(ad, set1, First(sel));
  sel.SelOutCount = sel.SelCount1;
  return sel;
}

void AddThirdSet(Selection& sel, int16_t set3) {
  sel.SelSet3 = set3;
  Fill(sel.data(), set3, {sel.SelMatrix3, sel.SelNames3, sel.SelCount3, nullptr});
}

void ClassifyFirst(Selection& sel) {
  const ActiveData& ad = sel.data();
  sel.SelSiteClass1 = SubsetClasses(ad, sel.SelMatrix1, sel.SelCount1);
  sel.SelSiteDiversity1 = SubsetDiversities(ad, sel.SelMatrix1, sel.SelCount1, sel.SelSiteClass1);
}

void ClassifySecond(Selection& sel) {
  const ActiveData& ad = sel.data();
  sel.SelSiteClass2 = SubsetClasses(ad, sel.SelMatrix2, sel.SelCount2);
  sel.SelSiteDiversity2 = SubsetDiversities(ad, sel.SelMatrix2, sel.SelCount2, sel.SelSiteClass2);
}

}  // namespace ovelt
