#pragma once
// G+C content of the first selection over the sites of a region without gaps or missing data:
// the share of G and C among the nucleotides of those sites, over the sites that no coding
// region covers, over the coding sites, and over all. A part with no such site has no value
// (none; the reports print "n.a.").

#include <cstdint>
#include <optional>

#include "core/selection.h"

namespace ovelt {

struct GcShare {
  double Content = 0.0;  // (G + C) / nucleotides
  int32_t Sites = 0;     // sites counted
};

struct GcContent {
  std::optional<GcShare> NonCoding;
  std::optional<GcShare> Coding;
  std::optional<GcShare> Total;

  template <class V>
  void Visit(V& v) const {
    Share(v, "gc_content", "gc_sites", Total);
    Share(v, "gc_content_noncoding", "gc_sites_noncoding", NonCoding);
    Share(v, "gc_content_coding", "gc_sites_coding", Coding);
  }

 private:
  template <class V>
  static void Share(V& v, const char* content, const char* sites,
                    const std::optional<GcShare>& share) {
    v.Optional(content, share ? std::optional<double>(share->Content) : std::nullopt);
    v.OptionalInteger(sites, share ? std::optional<int64_t>(share->Sites) : std::nullopt);
  }
};

[[nodiscard]] GcContent ComputeGcContent(const Selection& sel, int32_t from, int32_t to);

}  // namespace ovelt
