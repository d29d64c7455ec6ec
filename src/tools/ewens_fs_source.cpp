#include "tools/ewens_fs_source.h"

#include "stats/fs_statistic.h"

namespace ovelt {

EwensTail FsEwensTail(int32_t n, int32_t h, double theta) {
  const FsResult r = FsStatistic(n, h, theta);
  return {r.PEqual, r.StrobeckS, r.Fs};
}

}  // namespace ovelt
