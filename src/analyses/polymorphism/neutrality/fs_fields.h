#pragma once
// The JSON keys of Fu's Fs and Strobeck's S. Fs out of range (the 1234567 of the report) or not
// computed is null.

#include <optional>

#include "stats/fs_statistic.h"

namespace ovelt {

[[nodiscard]] inline std::optional<double> DeterminedFs(const std::optional<FsResult>& fs) {
  if (!fs) return std::nullopt;
  return fs->Fs;
}

template <class V>
void VisitFs(V& v, const std::optional<FsResult>& fs) {
  v.Optional("fs", DeterminedFs(fs));
  v.Optional("strobeck_s", fs ? std::optional<double>(fs->StrobeckS) : std::nullopt);
  v.Optional("p_equal", fs ? std::optional<double>(fs->PEqual) : std::nullopt);
}

}  // namespace ovelt
