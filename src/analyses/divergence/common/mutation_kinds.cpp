#include "analyses/divergence/common/mutation_kinds.h"

#include <array>

namespace ovelt {
namespace {

// Variants of a polymorphic class: classes 1 and 2 hold two.
int32_t VariantsOfClass(int16_t site_class) { return site_class <= 2 ? 2 : site_class; }

// Private and shared mutations of a site polymorphic in both populations, with a1, a2 and u the
// variants of population 1, 2 and of both, none of them at four.
void AddBothPolymorphic(int32_t a1, int32_t a2, int32_t u, MutationKinds& k) {
  if (a1 == 2 && a2 == 2 && u == 2) {
    k.Shared += 1;
  } else if (a1 == 2 && a2 == 2 && u == 3) {
    k.Private1 += 1;
    k.Private2 += 1;
  } else if (a1 == 3 && a2 == 3 && u == 3) {
    k.Shared += 2;
  } else if (a1 == 3 && a2 == 3 && u == 4) {
    k.Private1 += 1;
    k.Private2 += 1;
    k.Shared += 1;
  } else if (a1 == 3 && a2 == 2 && u == 3) {
    k.Private1 += 1;
    k.Shared += 1;
  } else if (a1 == 2 && a2 == 3 && u == 3) {
    k.Private2 += 1;
    k.Shared += 1;
  } else if (a1 == 3 && a2 == 2 && u == 4) {
    k.Private1 += 2;
    k.Private2 += 1;
  } else if (a1 == 2 && a2 == 3 && u == 4) {
    k.Private1 += 1;
    k.Private2 += 2;
  }
}

}  // namespace

int32_t MutationsOfClass(int16_t site_class) {
  if (site_class == 1) return 1;
  if (site_class >= 2 && site_class <= 4) return site_class - 1;
  return 0;
}

void AddSiteMutationKinds(const SiteVariants& s, MutationKinds& k) {
  if (s.Class1 == kGapOrMissing || s.Class2 == kGapOrMissing) return;
  if (s.Dxy == 1.0) {
    // Every pair differs: one fixed difference, and the variants within each population beyond
    // the first are its own (a third variant one more).
    k.Fixed += 1;
    if (s.H1 > 0.0) k.Private1 += s.Class1 == 3 ? 2 : 1;
    if (s.H2 > 0.0) k.Private2 += s.Class2 == 3 ? 2 : 1;
    return;
  }
  const bool poly1 = s.H1 > 0.0;
  const bool poly2 = s.H2 > 0.0;
  if (poly1 != poly2) {
    if (poly1) k.Private1 += MutationsOfClass(s.Class1);
    if (poly2) k.Private2 += MutationsOfClass(s.Class2);
    return;
  }
  if (!poly1) return;
  const int32_t a1 = VariantsOfClass(s.Class1);
  const int32_t a2 = VariantsOfClass(s.Class2);
  if (a1 == 4 && a2 == 4) {
    k.Shared += 3;
  } else if (a1 == 4) {
    k.Shared += a2 - 1;
    k.Private1 += 3 - (a2 - 1);
  } else if (a2 == 4) {
    k.Shared += a1 - 1;
    k.Private2 += 3 - (a1 - 1);
  } else {
    AddBothPolymorphic(a1, a2, s.Union, k);
  }
}

int32_t VariantsOfBoth(const Selection& sel, int32_t site) {
  std::array<bool, 256> seen{};
  int32_t variants = 0;
  const auto mark = [&](const SeqMatrix& m, int32_t n) {
    for (int32_t s = 1; s <= n; ++s) {
      bool& cell = seen[static_cast<unsigned char>(m.at(site, s))];
      if (!cell) ++variants;
      cell = true;
    }
  };
  mark(sel.SelMatrix1, sel.SelCount1);
  mark(sel.SelMatrix2, sel.SelCount2);
  return variants;
}

MutationKinds CountMutationKinds(const Selection& sel, const std::vector<double>& site_dxy,
                                 int32_t from, int32_t to) {
  MutationKinds kinds;
  for (int32_t site = from; site <= to; ++site) {
    const auto at = static_cast<size_t>(site);
    SiteVariants s;
    s.Class1 = sel.SelSiteClass1[at];
    s.Class2 = sel.SelSiteClass2[at];
    if (s.Class1 == kGapOrMissing || s.Class2 == kGapOrMissing) continue;
    s.H1 = sel.SelSiteDiversity1[at];
    s.H2 = sel.SelSiteDiversity2[at];
    s.Dxy = site_dxy[at];
    // The union matters only where both populations vary.
    if (s.H1 > 0.0 && s.H2 > 0.0) s.Union = VariantsOfBoth(sel, site);
    AddSiteMutationKinds(s, kinds);
  }
  return kinds;
}

}  // namespace ovelt
