#include "coalescent/replicate_statistic.h"

#include <cmath>
#include <span>

#include "coalescent/haplotype_classes.h"
#include "coalescent/statistic_code.h"
#include "stats/fay_wu_h.h"
#include "stats/fs_statistic.h"
#include "stats/fu_li_statistics.h"
#include "stats/harmonic.h"
#include "stats/linkage_summary.h"
#include "stats/minimum_recombination.h"
#include "stats/r2_statistic.h"
#include "stats/raggedness.h"
#include "stats/tajima_d.h"
#include "stats/wall_b_q.h"

namespace ovelt {
namespace {

// Columns by the number of sequences carrying the mutant: spectrum[i], i = 0..n.
void MutantSpectrum(const HaplotypeMatrix& m, std::vector<int32_t>& spectrum) {
  const int32_t n = m.Rows();
  spectrum.assign(static_cast<size_t>(n) + 1, 0);
  for (int32_t j = 0; j < m.Columns(); ++j) {
    const int16_t* cells = m.Column(j);
    int32_t ones = 0;
    for (int32_t r = 0; r < n; ++r) ones += cells[r];
    ++spectrum[static_cast<size_t>(ones)];
  }
}

bool IsFailure(double v) { return !std::isfinite(v); }

}  // namespace

StatisticConstants ConstantsFor(int code, int32_t n) {
  StatisticConstants k;
  k.n = n;
  k.a1 = HarmonicA1Double(n);
  switch (code % kGivenSegSitesOffset) {
    case kCodeTajimaD: {
      const TajimaCoefficients t = TajimaCoefficientsFor(n);
      k.a1 = t.a1;
      k.TajimaE1 = t.e1;
      k.TajimaE2 = t.e2;
      break;
    }
    case kCodeFuLiDStar:
    case kCodeFuLiFStar: {
      const FuLiCoefficients f = FuLiStarCoefficients(n);
      k.a1 = f.a1;
      k.StarUD = f.uD, k.StarVD = f.vD, k.StarUF = f.uF, k.StarVF = f.vF;
      break;
    }
    case kCodeFuLiD:
    case kCodeFuLiF: {
      const FuLiCoefficients f = FuLiOutgroupCoefficients(n);
      k.a1 = f.a1;
      k.OutUD = f.uD, k.OutVD = f.vD, k.OutUF = f.uF, k.OutVF = f.vF;
      break;
    }
    default:
      break;
  }
  return k;
}

void SingletonsPerSequence(const HaplotypeMatrix& m, std::vector<double>& u) {
  const int32_t n = m.Rows();
  u.assign(static_cast<size_t>(n) + 1, 0.0);
  for (int32_t j = 0; j < m.Columns(); ++j) {
    const int16_t* cells = m.Column(j);
    int32_t ones = 0;
    for (int32_t r = 0; r < n; ++r) ones += cells[r];
    if (ones == 0 || ones == n) continue;
    const bool twoOnASide = n == 3 || (n == 4 && ones == 2);
    if (n == 2 || twoOnASide) {
      const double share = n == 2 ? 0.5 : 1.0 / n;
      for (int32_t s = 1; s <= n; ++s) u[static_cast<size_t>(s)] += share;
      continue;
    }
    if (ones == 1 || ones == n - 1) {
      const int16_t lone = ones == 1 ? 1 : 0;
      for (int32_t r = 0; r < n; ++r)
        if (cells[r] == lone) u[static_cast<size_t>(r) + 1] += 1.0;
    }
  }
}

std::optional<double> ReplicateStatistic(int code, const StatisticConstants& k,
                                         const ReplicateData& r, StatisticScratch& scratch) {
  const int32_t n = k.n;
  const double s = r.S;
  double v = 0.0;
  switch (code) {
    case kCodeTajimaD:
      v = TajimaD(r.Pi, s, k.a1, k.TajimaE1, k.TajimaE2);
      break;
    case kCodeRaggedness:
      if (r.Pi == 0.0) return std::nullopt;
      MismatchHistogram(*r.Pairs, scratch.Histogram);
      v = RaggednessFromHistogram(std::span<const int32_t>(scratch.Histogram),
                                  r.Pairs->PairCount());
      break;
    case kCodePi:
      v = r.Pi;
      break;
    case kCodeThetaW:
      v = s / k.a1;
      break;
    case kCodeHd:
      v = HaplotypePartition(*r.Pairs, scratch.FirstMembers, scratch.Sizes).Hd;
      break;
    case kCodeHaplotypes:
      v = HaplotypePartition(*r.Pairs, scratch.FirstMembers, scratch.Sizes).h;
      break;
    case kCodeFs: {
      if (r.Pi == 0.0) return std::nullopt;
      const int32_t h = HaplotypePartition(*r.Pairs, scratch.FirstMembers, scratch.Sizes).h;
      const std::optional<double> fs = FsStatistic(n, h, r.Pi).Fs;
      if (!fs) return std::nullopt;
      v = *fs;
      break;
    }
    case kCodeZnS:
    case kCodeZa:
    case kCodeZZ: {
      const LinkageSummary z = LinkageFromColumns(r.Matrix->View(), *r.Flips);
      const std::optional<double> value = code == kCodeZnS ? z.ZnS : code == kCodeZa ? z.Za : z.ZZ;
      if (!value) return std::nullopt;
      v = *value;
      break;
    }
    case kCodeRm:
      v = RmFromColumns(r.Matrix->View());
      break;
    case kCodeWallB:
    case kCodeWallQ: {
      const WallBQ w = WallFromColumns(r.Matrix->View());
      const std::optional<double> value = code == kCodeWallB ? w.B : w.Q;
      if (!value) return std::nullopt;
      v = *value;
      break;
    }
    case kCodeFuLiDStar:
    case kCodeFuLiFStar: {
      MutantSpectrum(*r.Matrix, scratch.Spectrum);
      double singletons = scratch.Spectrum[1];
      if (n - 1 != 1) singletons += scratch.Spectrum[static_cast<size_t>(n - 1)];
      v = code == kCodeFuLiDStar
              ? FuLiDStarValue(s, singletons, k.a1, k.StarUD, k.StarVD, n)
              : FuLiFStarValue(r.Pi, s, singletons, k.StarUF, k.StarVF, n);
      break;
    }
    case kCodeFuLiD:
    case kCodeFuLiF: {
      MutantSpectrum(*r.Matrix, scratch.Spectrum);
      const double external = scratch.Spectrum[1];
      v = code == kCodeFuLiD ? FuLiDValue(s, external, k.a1, k.OutUD, k.OutVD)
                             : FuLiFValue(r.Pi, s, external, k.OutUF, k.OutVF);
      break;
    }
    case kCodeR2:
      if (r.Pi == 0.0) return std::nullopt;
      SingletonsPerSequence(*r.Matrix, scratch.Singletons);
      v = R2Statistic(scratch.Singletons, r.Pi, r.S);
      break;
    case kCodeFayWuH:
      MutantSpectrum(*r.Matrix, scratch.Spectrum);
      v = FayWuH(scratch.Spectrum, n).H;
      break;
    default:
      return std::nullopt;
  }
  if (IsFailure(v)) return std::nullopt;
  return v;
}

}  // namespace ovelt
