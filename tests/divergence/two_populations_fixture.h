#pragma once
// Two populations for the tests of the divergence family: the rows of population 1, then those
// of population 2, then rows in neither, as sets 1 and 2, both selected and classified.

#include <memory>
#include <string>
#include <vector>

#include "core/alignment_fixture.h"

namespace ovelt::test {

inline OwnedSelection TwoPopulations(const std::vector<std::string>& pop1,
                                     const std::vector<std::string>& pop2,
                                     const std::vector<std::string>& others = {}) {
  std::vector<std::string> rows = pop1;
  rows.insert(rows.end(), pop2.begin(), pop2.end());
  rows.insert(rows.end(), others.begin(), others.end());
  ActiveData ad = MakeAlignment(rows);
  std::vector<int> members1, members2;
  const int n1 = static_cast<int>(pop1.size());
  for (int i = 1; i <= n1; ++i) members1.push_back(i);
  for (int i = 1; i <= static_cast<int>(pop2.size()); ++i) members2.push_back(n1 + i);
  AddSet(ad, "Pop1", members1);
  AddSet(ad, "Pop2", members2);
  auto owner = std::make_shared<const ActiveData>(std::move(ad));
  OwnedSelection selected;
  static_cast<Selection&>(selected) = SelectTwoSets(*owner, 1, 2, {1, owner->NumSites});
  ClassifyFirst(selected);
  ClassifySecond(selected);
  selected.Owner = owner;
  return selected;
}

}  // namespace ovelt::test
