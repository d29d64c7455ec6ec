#include "analyses/polymorphism/size_changes/size_change_r2.h"

#include <array>

#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/common/polymorphic_sites.h"

namespace ovelt {

namespace {

// Adds one column of `n` codes (A, C, G, T as 0..3) to the singleton counts.
void AddColumn(const uint8_t* codes, int32_t n, std::vector<double>& u) {
  std::array<int32_t, 5> count{};
  for (int32_t s = 0; s < n; ++s) ++count[codes[s]];
  int32_t variants = 0;
  int32_t largest = 0;
  for (int32_t c = 0; c < 4; ++c) {
    if (count[static_cast<size_t>(c)] > 0) ++variants;
    if (count[static_cast<size_t>(c)] > largest) largest = count[static_cast<size_t>(c)];
  }
  if (variants < 2) return;
  // Two-variant splits that leave two sequences on one side: every one with n = 3, the 2 : 2
  // split with n = 4.
  const bool two_on_a_side = variants == 2 && (n == 3 || (n == 4 && largest == 2));
  if (n == 2 || two_on_a_side) {
    const double share = n == 2 ? 0.5 : 1.0 / n;
    for (int32_t s = 1; s <= n; ++s) u[static_cast<size_t>(s)] += share;
    return;
  }
  for (int32_t s = 0; s < n; ++s)
    if (count[codes[s]] == 1) u[static_cast<size_t>(s + 1)] += 1.0;
}

}  // namespace

std::vector<double> SingletonsPerSequence(const Selection& sel, int32_t from, int32_t to) {
  const int32_t n = sel.SelOutCount;
  std::vector<double> u(static_cast<size_t>(n > 0 ? n : 0) + 1, 0.0);
  ForEachColumn(sel, PolymorphicSites(sel, from, to),
                [&](int32_t, const uint8_t* codes) { AddColumn(codes, n, u); });
  return u;
}

}  // namespace ovelt
