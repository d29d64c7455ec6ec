#include "analyses/recombination/four_gametes.h"

#include <cstddef>

namespace ovelt {

SiteAlleles RmAlleles(const Selection& sel, int32_t site) {
  SiteAlleles a;
  a.First = sel.SelMatrix1.at(site, 1);
  for (int32_t q = 2; q <= sel.SelCount1; ++q) {
    const char c = sel.SelMatrix1.at(site, q);
    if (c != a.First) a.Second = c;
  }
  return a;
}

namespace {

// One bit per sequence 2..n for each site: set when the sequence carries the second allele.
// Sequence 1 carries the first allele at every site, so its gamete needs no bit.
class AlleleBits {
 public:
  AlleleBits(const Selection& sel, const std::vector<int32_t>& sites)
      : words_(static_cast<std::size_t>(sel.SelCount1 - 1 + 63) / 64),
        bits_(words_ * sites.size(), 0) {
    for (std::size_t j = 0; j < sites.size(); ++j) {
      const SiteAlleles alleles = RmAlleles(sel, sites[j]);
      uint64_t* column = bits_.data() + j * words_;
      for (int32_t q = 2; q <= sel.SelCount1; ++q) {
        if (sel.SelMatrix1.at(sites[j], q) != alleles.Second) continue;
        const auto bit = static_cast<std::size_t>(q - 2);
        column[bit / 64] |= uint64_t{1} << (bit % 64);
      }
    }
  }

  // 1 + the number of the three gametes other than sequence 1's that some sequence carries.
  [[nodiscard]] int32_t Gametes(std::size_t a, std::size_t b) const {
    const uint64_t* x = bits_.data() + a * words_;
    const uint64_t* y = bits_.data() + b * words_;
    uint64_t second_first = 0, first_second = 0, second_second = 0;
    for (std::size_t w = 0; w < words_; ++w) {
      second_first |= x[w] & ~y[w];
      first_second |= ~x[w] & y[w];
      second_second |= x[w] & y[w];
    }
    return 1 + (second_first != 0 ? 1 : 0) + (first_second != 0 ? 1 : 0) +
           (second_second != 0 ? 1 : 0);
  }

 private:
  std::size_t words_;
  std::vector<uint64_t> bits_;
};

}  // namespace

FourGameteTable FourGametePairs(const Selection& sel, int32_t from, int32_t to,
                                const std::function<void(int)>& gauge) {
  FourGameteTable t;
  for (int32_t s = from; s <= to; ++s) {
    const int16_t c = sel.SelSiteClass1[static_cast<std::size_t>(s)];
    if (c == 1 || c == 2) t.Sites.push_back(s);
    if (c == 3 || c == 4) t.OtherVariants.push_back(s);
  }
  const auto l = static_cast<int64_t>(t.Sites.size());
  t.PairsCompared = l * (l - 1) / 2;
  if (l < 2) return t;
  const AlleleBits bits(sel, t.Sites);
  const std::size_t count = t.Sites.size();
  for (std::size_t a = 0; a + 1 < count; ++a) {
    for (std::size_t b = a + 1; b < count; ++b)
      if (bits.Gametes(a, b) == 4) t.Pairs.push_back({t.Sites[a], t.Sites[b]});
    if (gauge) gauge(10 + static_cast<int>(30 * static_cast<int64_t>(a + 1) / l));
  }
  return t;
}

}  // namespace ovelt
