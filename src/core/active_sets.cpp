#include "core/active_sets.h"

#include "core/command_id.h"

#include <algorithm>

namespace ovelt {

namespace {

bool HoldsIncluded(const std::vector<int32_t>& members, const std::vector<bool>& seq_included) {
  return std::any_of(members.begin(), members.end(), [&](int32_t seq) {
    return seq >= 1 && seq < static_cast<int32_t>(seq_included.size()) &&
           seq_included[static_cast<size_t>(seq)];
  });
}

}  // namespace

int32_t NumeroNetoPoblacionesIncluidas(const ActiveData& ad) {
  forms_class work;
  work.initValues(ad.SequenceSets);
  return NumeroNetoPoblacionesIncluidas(work, ad.SeqIncluded);
}

int32_t NumeroNetoPoblacionesIncluidas(const forms_class& work,
                                       const std::vector<bool>& seq_included) {
  int32_t count = 0;
  for (int32_t i = 1; i <= work.count(); ++i) {
    const SetRecord& set = work.record(i);
    if (set.active != 0 && HoldsIncluded(set.members, seq_included)) ++count;
  }
  return count;
}

std::optional<std::string> CheckActivePopulations(const ActiveData& ad, const forms_class& work) {
  if (TitleCode(ad.Analysis) != TitleCode(CommandId::kGeneFlow)) return std::nullopt;
  if (NumeroNetoPoblacionesIncluidas(work, ad.SeqIncluded) >= 2) return std::nullopt;
  return kTooFewActivePopulations;
}

}  // namespace ovelt
