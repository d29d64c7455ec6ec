#include "analyses/linkage/linkage_compute.h"

#include <cmath>
#include <cstddef>

#include "analyses/linkage/allele_pairs.h"
#include "analyses/linkage/linkage_pair.h"
#include "analyses/linkage/pair_distance.h"
#include "analyses/linkage/pair_fisher.h"
#include "analyses/linkage/pair_tests.h"
#include "command/command_failure.h"
#include "core/net_sites.h"
#include "stats/stats_error.h"

namespace ovelt {

namespace {

// The regression arrays, one point per pair.
struct RegressionPoints {
  std::vector<double> X, AbsD, AbsDPrime, R2;
  std::vector<double> StarX, StarAbsDPrime;  // the pairs whose |D'| is not 1

  void Reserve(std::size_t pairs) {
    for (auto* v : {&X, &AbsD, &AbsDPrime, &R2}) v->reserve(pairs);
  }
  void Add(const LinkagePairRow& row) {
    const double x = row.Dist / 1000.0;
    X.push_back(x);
    AbsD.push_back(std::fabs(row.D));
    AbsDPrime.push_back(std::fabs(row.DPrime));
    R2.push_back(row.R2);
    // The pair table keeps single precision: a perfect association is 1 there even when the
    // division left the last bit of a double off.
    if (static_cast<float>(std::fabs(row.DPrime)) != 1.0f) {
      StarX.push_back(x);
      StarAbsDPrime.push_back(std::fabs(row.DPrime));
    }
  }
};

// The tests of one pair, their marks and the run's counters.
class PairTester {
 public:
  PairTester(const LinkageOptions& options, int64_t pairs, int32_t n, LinkageResult& result)
      : fisher_(options.Fisher),
        chi_(options.ChiSquare),
        result_(result),
        // The table of ln(i!) is built once for n, and the P values of a margin pair kept, for
        // all the pairs.
        exact_(options.Fisher ? n : 1) {
    if (!fisher_ && !chi_) return;
    alpha_ = BonferroniAlpha(pairs);
    bracket_ = BracketFor(alpha_);
    result.BonferroniAlpha = alpha_;
  }

  void Test(const HaplotypePairCounts& h, int32_t n, LinkagePairRow& row) {
    if (fisher_) {
      row.HasFisher = true;
      row.FisherP = exact_.TwoTailed(h.h11, h.h12, h.h21, h.h22);
      row.FisherStars = static_cast<int8_t>(FisherStars(row.FisherP));
      if (row.FisherP < 0.05) {
        ++result_.FisherSignificant;
        row.Significant = true;
      }
      row.FisherBonferroni = FisherBonferroni(row.FisherP, alpha_);
      if (row.FisherBonferroni) ++result_.FisherBonferroni;
    }
    if (chi_) {
      row.HasChiSquare = true;
      row.ChiSquare = PairChiSquare(h, n);
      row.ChiSquareStars = static_cast<int8_t>(ChiSquareStars(row.ChiSquare));
      if (ChiSquareSignificant(row.ChiSquare)) {
        ++result_.ChiSquareSignificant;
        row.Significant = true;
      }
      row.ChiSquareBonferroni = ChiSquareBonferroni(row.ChiSquare, alpha_, bracket_);
      if (row.ChiSquareBonferroni) ++result_.ChiSquareBonferroni;
    }
  }

 private:
  bool fisher_;
  bool chi_;
  LinkageResult& result_;
  double alpha_ = 0.0;
  ChiSquareBracket bracket_;
  PairFisher exact_;
};

void FitRegressions(const RegressionPoints& points, LinkageResult& result) {
  result.Regressions.push_back(FitOnDistance("abs_d", points.X, points.AbsD));
  result.Regressions.push_back(FitOnDistance("abs_d_prime", points.X, points.AbsDPrime));
  result.Regressions.push_back(
      FitOnDistance("abs_d_prime_star", points.StarX, points.StarAbsDPrime));
  result.Regressions.push_back(FitOnDistance("r2", points.X, points.R2));
}

LinkageResult Scan(const Selection& sel, const LinkageOptions& options,
                   const Progress& progress) {
  const int32_t from = sel.Region.RegionFrom;
  const int32_t to = sel.Region.RegionTo;
  const int32_t n = sel.SelCount1;
  LinkageResult result;
  result.RegionFrom = from;
  result.RegionTo = to;
  result.Sequences = n;
  result.NetSites = NetSites(sel, from, to);
  result.AllSites = options.AllSites;
  result.Fisher = options.Fisher;
  result.ChiSquare = options.ChiSquare;

  progress.Say(kLinkageBusyFirst);
  const AnalysedSites sites =
      FindAnalysedSites(sel.SelMatrix1, n, sel.SelSiteClass1, from, to, options.AllSites);
  const auto s = static_cast<int32_t>(sites.Sites.size());
  result.ThreeOrFourVariants = sites.ThreeOrFourVariants;
  result.SitesAnalysed = s;
  result.PairCount = static_cast<int64_t>(s) * (s - 1) / 2;
  if (result.PairCount == 0)
    Fail("Input data file:  " + sel.data().FileName + "\n\n" + kNoPairwiseComparisons);

  progress.Say(kLinkageBusySecond);
  const AlleleBits bits(sel.SelMatrix1, n, sites);
  const PairDistance distance(sel.SelMatrix1, n, sel.SelSiteClass1, from, to);
  PairTester tester(options, result.PairCount, n, result);
  SummaryGatherer summaries;
  RegressionPoints points;
  points.Reserve(static_cast<std::size_t>(result.PairCount));
  std::vector<LinkagePairRow> pairs;
  pairs.reserve(static_cast<std::size_t>(result.PairCount));

  int64_t done = 0;
  int percent = 0;
  for (int32_t a = 0; a + 1 < s; ++a) {
    const int32_t site1 = sites.Sites[static_cast<std::size_t>(a)];
    for (int32_t b = a + 1; b < s; ++b) {
      const int32_t site2 = sites.Sites[static_cast<std::size_t>(b)];
      const HaplotypePairCounts h = bits.Counts(a, b);
      const PairMeasures m = MeasuresFromCounts(h, n);
      LinkagePairRow& row = pairs.emplace_back();
      row.Site1 = site1;
      row.Site2 = site2;
      row.Dist = distance(site1, site2);
      row.D = m.D;
      row.DPrime = m.DPrime;
      row.R = m.R;
      row.R2 = m.R2;
      tester.Test(h, n, row);
      summaries.AddPair(m.R2);
      if (b == a + 1) summaries.AddAdjacent(m.R2, h);
      points.Add(row);
    }
    done += s - 1 - a;
    const auto now = static_cast<int>(done * 100 / result.PairCount);
    if (now > percent) {
      percent = now;
      progress.Raise(percent);
    }
  }
  result.PairRows = std::make_shared<const std::vector<LinkagePairRow>>(std::move(pairs));
  result.Summaries = summaries.Finish(s);
  FitRegressions(points, result);
  return result;
}

}  // namespace

LinkageResult ComputeLinkage(const Selection& sel, const LinkageOptions& options,
                             const Progress& progress) {
  try {
    return Scan(sel, options, progress);
  } catch (const StatsError& error) {
    Fail(error.what());
  }
}

}  // namespace ovelt
