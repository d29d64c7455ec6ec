#include "core/include_sequences.h"

#include <utility>

#include "core/gap_update.h"

namespace ovelt {

namespace {

bool Ticked(const std::vector<bool>& ticks, int32_t seq) {
  return seq < static_cast<int32_t>(ticks.size()) && ticks[static_cast<size_t>(seq)];
}

void RebuildIncludedLayer(ActiveData& ad) {
  if (ad.NumSeqs == ad.TotalSeqs) {
    ad.IncMatrix = ad.RawMatrix;  // shares the cells
    ad.IncNames = ad.RawNames;
    return;
  }
  SeqMatrix matrix;
  matrix.set_sites(ad.RawMatrix.sites());
  matrix.reserve_sequences(ad.NumSeqs);
  std::vector<std::string> names{""};
  for (int32_t seq = 1; seq <= ad.TotalSeqs; ++seq) {
    if (!ad.SeqIncluded[static_cast<size_t>(seq)]) continue;
    matrix.append_sequence(ad.RawMatrix.sequence(seq));
    names.push_back(ad.RawNames[static_cast<size_t>(seq)]);
  }
  ad.IncMatrix = std::move(matrix);
  ad.IncNames = std::move(names);
}

}  // namespace

std::optional<std::string> IncludeSequences(ActiveData& ad, const std::vector<bool>& ticks,
                                            int16_t gaps_in_sets) {
  int32_t ticked = 0;
  for (int32_t seq = 1; seq <= ad.TotalSeqs; ++seq) ticked += Ticked(ticks, seq) ? 1 : 0;
  if (ticked == 0) return kNoSequenceIncluded;

  bool changed = gaps_in_sets != ad.GapsInSets;
  ad.SeqIncluded.resize(static_cast<size_t>(ad.TotalSeqs) + 1, false);
  for (int32_t seq = 1; seq <= ad.TotalSeqs; ++seq) {
    const bool include = Ticked(ticks, seq);
    if (ad.SeqIncluded[static_cast<size_t>(seq)] != include) changed = true;
    ad.SeqIncluded[static_cast<size_t>(seq)] = include;
  }
  ad.NumSeqs = ticked;
  ad.GapsInSets = gaps_in_sets;
  if (changed) {
    RebuildIncludedLayer(ad);
    ActualizaCambiosGaps(ad);
  }
  return std::nullopt;
}

}  // namespace ovelt
