#pragma once
// The JSON keys of the haplotypes of a result (h, Hd and its variance); null when they were not
// computed.

#include <cstdint>
#include <optional>

#include "analyses/polymorphism/common/haplotypes.h"

namespace ovelt {

template <class V>
void VisitHaplotypes(V& v, const std::optional<HaplotypeStats>& h) {
  v.OptionalInteger("haplotypes", h ? std::optional<int64_t>(h->Haplotypes) : std::nullopt);
  v.Optional("hd", h ? std::optional<double>(h->Hd) : std::nullopt);
  v.Optional("var_hd", h ? std::optional<double>(h->VarHd) : std::nullopt);
}

}  // namespace ovelt
