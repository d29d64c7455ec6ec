#include "analyses/divergence/common/site_changes_count.h"

#include "core/active_data.h"

namespace ovelt {

namespace {

int16_t At(const std::vector<int16_t>& values, int32_t site) {
  return site >= 1 && static_cast<size_t>(site) < values.size()
             ? values[static_cast<size_t>(site)]
             : int16_t{0};
}

}  // namespace

SiteChangeCount CountSiteChanges(const std::vector<int16_t>& codes, int32_t from, int32_t to) {
  SiteChangeCount count;
  for (int32_t site = from; site <= to; ++site) {
    int code = At(codes, site);
    if (code < 0 && code > -5) count.Complex = true;
    for (; code > 0; code /= 10) {
      if (code % 10 == 1) ++count.Nonsynonymous;
      if (code % 10 == 2) ++count.Synonymous;
    }
  }
  return count;
}

int32_t CountNoncodingMutations(const std::vector<int16_t>& site_class,
                                const std::vector<int16_t>& codon_position, int32_t from,
                                int32_t to) {
  int32_t mutations = 0;
  for (int32_t site = from; site <= to; ++site) {
    if (At(codon_position, site) != 0) continue;
    const int16_t c = At(site_class, site);
    if (c == kSingletonSite) ++mutations;
    if (c >= kInformativeSite && c <= kFourVariants) mutations += c - 1;
  }
  return mutations;
}

bool ThetaGatePasses(const std::vector<int16_t>& codes, int32_t from, int32_t to,
                     const std::vector<float>* nonsynonymous_changes) {
  for (int32_t site = from; site <= to; ++site) {
    const int16_t code = At(codes, site);
    if (code == 12 || code == 112 || code == 122) return false;
    if (code <= -2 && code >= -4) return false;
    if ((code == 2 || code == 22 || code == 222) && nonsynonymous_changes != nullptr &&
        static_cast<size_t>(site) < nonsynonymous_changes->size() &&
        (*nonsynonymous_changes)[static_cast<size_t>(site)] > 0.0F)
      return false;
  }
  return true;
}

}  // namespace ovelt
