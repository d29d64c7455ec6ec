#include "analyses/polymorphism/diversity/dna_polymorphism.h"

#include "command/command_failure.h"

#include <new>
#include <optional>

#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/diversity/pi_jukes_cantor.h"
#include "stats/stats_error.h"

namespace ovelt {

namespace {

void Say(const PolyProgress& progress, const std::string& words) {
  if (progress.Status) progress.Status(words);
}

// Runs one step; a fault inside it becomes that step's message.
template <class Step>
auto Guarded(const std::string& message, bool append_fault, Step&& step) {
  try {
    return step();
  } catch (const std::bad_alloc&) {
    Fail(message);
  } catch (const StatsError& e) {
    Fail(append_fault ? message + e.what() : message);
  }
}

}  // namespace

DnaPolResult ComputeDnaPolymorphism(const Selection& sel, int32_t from, int32_t to,
                                    const DnaPolOptions& options, const SlidingWindowSpec& window,
                                    const PolyProgress& progress) {
  DnaPolResult r;
  r.RegionFrom = from;
  r.RegionTo = to;
  r.Sequences = sel.SelOutCount;
  r.MissingData = options.MissingData && !options.SlidingOn;
  if (r.MissingData) {
    r.Deletion = Guarded(kPairwiseDeletionFailure, false,
                         [&] { return ComputePairwiseDeletion(sel, from, to, progress.Gauge); });
    return r;
  }

  Say(progress, "Computing Haplotype Diversity...");
  r.Stats = ComputePolyStats(sel, from, to);
  r.Haplotypes = Guarded(kHaplotypeFailure, false,
                         [&] { return ComputeHaplotypes(sel, from, to, progress.Gauge); });
  const int32_t l = r.Stats->NetSites;
  const bool var_pi = options.ComputeVarPi && !options.SlidingOn;
  const bool jc = options.ComputeJC && !options.SlidingOn;
  r.VarPiAsked = var_pi;
  r.JukesCantorAsked = jc;
  if (l != 0) {
    // The pairwise differences serve both the variance of Pi and Pi(JC).
    std::optional<PairCounts> d;
    if (var_pi) {
      Say(progress, "Computing sampling Variance of Pi...");
      r.SamplingVariance = Guarded(kSamplingVarianceFailure, false, [&] {
        const PolyGauge scaled = [&](int percent) { RaiseTo(progress.Gauge, percent / 3); };
        d = PairwiseDifferences(sel, from, to, scaled);
        return SamplingVarianceOfPi(*d, l, progress.Gauge);
      });
    }
    if (jc) {
      Say(progress, "Computing Pi (Jukes and Cantor)...");
      r.PiJC = Guarded(kJukesCantorFailure, false, [&] {
        if (!d) d = PairwiseDifferences(sel, from, to);
        return PiJukesCantor(*d, l, progress.Gauge);
      });
    }
    r.Variances = Guarded(kTajimaVariancesFailure, true,
                          [&] { return ComputeThetaVariances(r.Sequences, *r.Stats); });
  }
  if (options.SlidingOn) {
    Say(progress, "Computing Pi (Sliding Window)...");
    try {
      r.Windows = ComputePiThetaWindows(sel, from, to, window, progress.Gauge);
    } catch (const std::exception&) {
      FailTooBig(WindowLoopFailureMessage(sel.data().FilePath));
    }
  }
  return r;
}

}  // namespace ovelt
