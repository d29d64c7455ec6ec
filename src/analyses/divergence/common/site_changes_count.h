#pragma once
// Counting the mutations of a region from its `SiteChangeCode`s, the noncoding mutations from
// the site classes, and the gate that keeps theta out of a region whose codes are uncertain.

#include <cstdint>
#include <vector>

namespace ovelt {

struct SiteChangeCount {
  int32_t Synonymous = 0;     // digits 2 of the positive codes (Ms)
  int32_t Nonsynonymous = 0;  // digits 1 (Ma)
  bool Complex = false;       // a code of -2, -3 or -4 (a varying site of a complex codon)
};

// Over `from`..`to` of `codes` (per site, index 0 unused).
[[nodiscard]] SiteChangeCount CountSiteChanges(const std::vector<int16_t>& codes, int32_t from,
                                               int32_t to);

// Mutations at the noncoding sites (`codon_position` 0) of `from`..`to`: a site of class 1 adds
// one, a site of class 2, 3 or 4 its class minus one.
[[nodiscard]] int32_t CountNoncodingMutations(const std::vector<int16_t>& site_class,
                                              const std::vector<int16_t>& codon_position,
                                              int32_t from, int32_t to);

// Whether theta may be given for `from`..`to`: no site holds a mixed code (12, 112, 122) or a
// varying complex position (-2, -3, -4), and no site of a synonymous code (2, 22, 222) carries
// nonsynonymous changes in `nonsynonymous_changes` (the per-site changes of the polymorphism and
// divergence tables, when a caller has them; a caller without them passes none).
[[nodiscard]] bool ThetaGatePasses(const std::vector<int16_t>& codes, int32_t from, int32_t to,
                                   const std::vector<float>* nonsynonymous_changes = nullptr);

}  // namespace ovelt
