#include "coalescent/intermediate_recombination.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "coalescent/free_recombination.h"
#include "coalescent/recombination_history.h"
#include "coalescent/recombination_mutations.h"

namespace ovelt {
namespace {

double A1(int n) {
  double sum = 0.0;
  for (int i = 1; i < n; ++i) sum += 1.0 / i;
  return sum;
}

double A2(int n) {
  double sum = 0.0;
  for (int i = 1; i < n; ++i) sum += 1.0 / (static_cast<double>(i) * i);
  return sum;
}

double PairwiseAverage(const HaplotypeMatrix& m) {
  const int n = m.Rows();
  double differences = 0.0;
  for (int c = 0; c < m.Columns(); ++c) {
    int k = 0;
    for (int row = 0; row < n; ++row) k += m.at(row, c);
    differences += static_cast<double>(k) * (n - k);
  }
  return differences / (n * (n - 1) / 2.0);
}

struct Stream {
  RandomState random;
  PoissonState poisson;
  int32_t seed;
  explicit Stream(int32_t s) : seed(-s) {}
};

// Mean, variance and the standard error of the sample variance, sqrt((m4 - s^4) / R), from
// the replicates' own fourth moment.
struct Spread {
  double mean = 0.0, variance = 0.0, varianceError = 0.0;
};

Spread SpreadOf(const std::vector<double>& values) {
  Spread s;
  const auto count = static_cast<double>(values.size());
  for (const double v : values) s.mean += v;
  s.mean /= count;
  double m4 = 0.0;
  for (const double v : values) {
    const double d = (v - s.mean) * (v - s.mean);
    s.variance += d;
    m4 += d * d;
  }
  s.variance /= count;
  m4 /= count;
  s.varianceError = std::sqrt((m4 - s.variance * s.variance) / count);
  return s;
}

std::vector<double> PiOverReplicates(int n, int sites, double r, double theta, int replicates,
                                     int32_t seed) {
  IntermediateRecombination generator(n, sites, r);
  Stream s(seed);
  HaplotypeMatrix m;
  std::vector<double> values;
  for (int rep = 0; rep < replicates; ++rep) {
    generator.Replicate(theta, -1, s.seed, s.random, s.poisson, m);
    s.seed = 1;  // as the driver leaves it between replicates
    values.push_back(PairwiseAverage(m));
  }
  return values;
}

// The bookkeeping that must hold after every event: the link count is the sum of the
// chromosomes' links; segments are ordered, disjoint, and begin and end on stretch bounds; the
// linked list from entry 1 gives the stretch starts in ascending order.
void ExpectConsistent(const RecombinationHistory& h) {
  const RecombinationStretches& st = h.Stretches();
  std::vector<bool> isStart(static_cast<size_t>(h.SitesInRegion()) + 1, false);
  int entry = 1, position = 0, previous = -1;
  while (entry != 0) {
    ASSERT_LT(position, st.StretchCount());
    EXPECT_EQ(st.EntryAt(position), entry);
    EXPECT_EQ(st.FirstSite(position), st.ListFirstSite(entry));
    EXPECT_GT(st.ListFirstSite(entry), previous);
    previous = st.ListFirstSite(entry);
    isStart[static_cast<size_t>(previous)] = true;
    entry = st.ListNext(entry);
    ++position;
  }
  EXPECT_EQ(position, st.StretchCount());
  isStart[static_cast<size_t>(h.SitesInRegion())] = true;
  int links = 0;
  for (int c = 0; c < h.ChromosomeCount(); ++c) {
    const auto& segments = h.Chromosome(c).Segments;
    ASSERT_FALSE(segments.empty());
    links += h.Chromosome(c).Links();
    for (size_t i = 0; i < segments.size(); ++i) {
      EXPECT_LE(segments[i].Begin, segments[i].End);
      EXPECT_TRUE(isStart[static_cast<size_t>(segments[i].Begin)]);
      EXPECT_TRUE(isStart[static_cast<size_t>(segments[i].End) + 1]);
      if (i > 0) {
        EXPECT_LT(segments[i - 1].End, segments[i].Begin);
      }
    }
  }
  EXPECT_EQ(h.LinkCount(), links);
}

// Two sites have one link between them: n links at the start; a cut makes the two stretches
// {0} and {1}, and none can follow.
TEST(IntermediateRecombination, TwoSitesHaveOneLinkAndAtMostTwoStretches) {
  const int n = 6;
  RecombinationHistory history(n, 2, 5.0);
  history.Start();
  EXPECT_EQ(history.LinkCount(), n);
  for (int c = 0; c < n; ++c) EXPECT_EQ(history.Chromosome(c).Links(), 1);

  IntermediateRecombination generator(n, 2, 5.0);
  Stream s(11);
  HaplotypeMatrix m;
  int split = 0;
  for (int rep = 0; rep < 300; ++rep) {
    generator.Replicate(2.0, -1, s.seed, s.random, s.poisson, m);
    const int stretches = generator.History().Stretches().StretchCount();
    ASSERT_GE(stretches, 1);
    ASSERT_LE(stretches, 2);
    if (stretches == 2) {
      ++split;
      EXPECT_EQ(generator.History().Stretches().FirstSite(1), 1);
    }
  }
  // With R = 5 over one link, a split is common (the first event alone is a recombination with
  // probability 5 n / (5 n + n (n - 1)) = 1/2).
  EXPECT_GT(split, 100);
}

// A hand-made history over 10 sites of 3 sequences. Cuts at 2|3 and 5|6 make the stretches
// starting at 0, 3 and 6; coalescing {0..2} with {6..9}, both from sequence 0, leaves a
// chromosome with a gap over 3..5. A cut in that gap adds no stretch and removes the whole gap
// from the links; a cut at an existing breakpoint adds none either.
TEST(IntermediateRecombination, CutInAGapAddsNoStretch) {
  RecombinationHistory history(3, 10, 1.0);
  history.Start();
  ASSERT_EQ(history.LinkCount(), 27);
  history.Recombine(3);  // chromosome 0, links 1..9; link 3 is between sites 2 and 3
  EXPECT_EQ(history.Stretches().StretchCount(), 2);
  EXPECT_EQ(history.LinkCount(), 26);
  ASSERT_EQ(history.ChromosomeCount(), 4);
  EXPECT_EQ(history.Chromosome(3).Segments.front().Begin, 3);
  ExpectConsistent(history);
  // Links: chromosome 0 has 2, chromosomes 1 and 2 have 9, chromosome 3 has 6 (sites 3..9).
  history.Recombine(2 + 9 + 9 + 3);  // chromosome 3, between sites 5 and 6
  EXPECT_EQ(history.Stretches().StretchCount(), 3);
  ASSERT_EQ(history.ChromosomeCount(), 5);
  ExpectConsistent(history);

  history.SetCurrentTime(0.25);
  history.Coalesce(0, 4);  // {0..2} and {6..9}: nothing shared, no node
  ASSERT_EQ(history.ChromosomeCount(), 4);
  const auto& gapped = history.Chromosome(0).Segments;
  ASSERT_EQ(gapped.size(), 2u);
  EXPECT_EQ(gapped[0].End, 2);
  EXPECT_EQ(gapped[1].Begin, 6);
  EXPECT_EQ(history.Chromosome(0).Links(), 9);
  ExpectConsistent(history);

  const int linksBefore = history.LinkCount();
  history.Recombine(5);  // chromosome 0: between sites 4 and 5, inside the gap
  EXPECT_EQ(history.Stretches().StretchCount(), 3);
  EXPECT_EQ(history.LinkCount(), linksBefore - 4);  // 9 links become 2 + 3
  ASSERT_EQ(history.ChromosomeCount(), 5);
  EXPECT_EQ(history.Chromosome(0).Segments.back().End, 2);
  EXPECT_EQ(history.Chromosome(4).Segments.front().Begin, 6);
  ExpectConsistent(history);

  // Chromosome 1 still spans 0..9; a cut between 2 and 3 falls on an existing breakpoint.
  history.Recombine(2 + 3);
  EXPECT_EQ(history.Stretches().StretchCount(), 3);
  ExpectConsistent(history);
}

// A new breakpoint copies the tree of the stretch it splits, nodes and times alike, so that
// the halves go on from the same history.
TEST(IntermediateRecombination, NewStretchCopiesTheTreeItSplits) {
  RecombinationHistory history(3, 10, 1.0);
  history.Start();
  history.SetCurrentTime(0.5);
  history.Coalesce(0, 1);  // node 3 over sequences 0 and 1, in the only stretch
  ASSERT_EQ(history.ChromosomeCount(), 2);
  ASSERT_EQ(history.Chromosome(0).Segments.front().Descendant, 3);
  history.Recombine(5);  // chromosome 0, between sites 4 and 5
  const RecombinationStretches& st = history.Stretches();
  ASSERT_EQ(st.StretchCount(), 2);
  const int first = st.EntryAt(0), second = st.EntryAt(1);
  EXPECT_EQ(st.FirstSite(1), 5);
  EXPECT_EQ(st.NodesUsed(second), 3);
  EXPECT_EQ(st.Links(second, 1)[3], 0);
  EXPECT_EQ(st.Links(second, 2)[3], 1);
  EXPECT_EQ(st.Links(second, 0)[0], 3);
  EXPECT_EQ(st.Times(second)[3], 0.5);
  EXPECT_EQ(st.Times(first)[3], 0.5);
  ExpectConsistent(history);
}

// Two sequences coalescing finish the tree at once: the root 2 gets both sequences, the time
// of the event, and no material is carried on, so both chromosomes leave.
TEST(IntermediateRecombination, FinishedTreeIsNotCarriedOn) {
  RecombinationHistory history(2, 50, 3.0);
  history.Start();
  history.SetCurrentTime(0.7);
  history.Coalesce(0, 1);
  EXPECT_EQ(history.ChromosomeCount(), 0);
  EXPECT_EQ(history.LinkCount(), 0);
  const RecombinationStretches& st = history.Stretches();
  EXPECT_EQ(st.NodesUsed(1), 2);
  EXPECT_EQ(st.Links(1, 1)[2], 0);
  EXPECT_EQ(st.Links(1, 2)[2], 1);
  EXPECT_EQ(st.Links(1, 0)[0], 2);
  EXPECT_EQ(st.Links(1, 0)[1], 2);
  EXPECT_EQ(st.Times(1)[2], 0.7);
  EXPECT_DOUBLE_EQ(st.TreeLength(1), 1.4);
}

// Random events checked one by one: the bookkeeping holds after each, and the history ends
// with every tree complete, each node later than its children.
TEST(IntermediateRecombination, RandomHistoryKeepsItsBookkeeping) {
  const int n = 7, sites = 40;
  RecombinationHistory history(n, sites, 8.0);
  Stream s(606);
  for (int rep = 0; rep < 30; ++rep) {
    history.Start();
    while (history.ChromosomeCount() >= 2) {
      const int k = history.ChromosomeCount();
      const double recombination = 8.0 / (sites - 1) * history.LinkCount();
      const double total = recombination + k * (k - 1.0);
      if (recombination / total <= Ran(s.seed, s.random)) {
        const int a = static_cast<int>(k * Ran(s.seed, s.random));
        int b = a;
        while (b == a) b = static_cast<int>(k * Ran(s.seed, s.random));
        history.SetCurrentTime(history.CurrentTime() + 1.0);
        history.Coalesce(std::min(a, b), std::max(a, b));
      } else {
        history.Recombine(static_cast<int>(history.LinkCount() * Ran(s.seed, s.random)) + 1);
      }
      ExpectConsistent(history);
      if (HasFailure()) return;
    }
    const RecombinationStretches& st = history.Stretches();
    for (int p = 0; p < st.StretchCount(); ++p) {
      const int entry = st.EntryAt(p);
      ASSERT_EQ(st.NodesUsed(entry), 2 * (n - 1));
      double branches = 0.0;
      for (int node = 0; node < 2 * (n - 1); ++node) {
        const double above = st.Times(entry)[st.Links(entry, 0)[node]] - st.Times(entry)[node];
        EXPECT_GT(above, 0.0);
        branches += above;
      }
      EXPECT_NEAR(st.TreeLength(entry), branches, 1e-9 * branches);
      // The descendants of a node, found downwards, are the sequences whose walk up the
      // parents reaches that node before any higher one.
      std::vector<int16_t> column(n);
      std::vector<int32_t> stack;
      for (int node = 0; node < 2 * (n - 1); ++node) {
        std::fill(column.begin(), column.end(), int16_t{0});
        MarkDescendants(st, entry, node, column.data(), stack);
        for (int leaf = 0; leaf < n; ++leaf) {
          int up = leaf;
          while (up < node) up = st.Links(entry, 0)[up];
          EXPECT_EQ(column[static_cast<size_t>(leaf)], up == node ? 1 : 0);
        }
      }
    }
  }
}

// Replays a replicate of 2 sequences with R = 0 (the region becomes 1000 sites, one stretch)
// on an independent stream: U for the waiting time -ln(1 - U) / 2, U for the kind of event
// (always a coalescence, the recombination rate being 0), U for a and U's for b until b
// differs, a Poisson deviate of mean theta x 1000 / 1000 x 2t, then one U per mutation: x = U 2t
// falls on the branch of sequence 0 when x <= t.
TEST(IntermediateRecombination, ReplayOfTwoSequencesWithoutRecombination) {
  const double theta = 3.0;
  IntermediateRecombination generator(2, 0, 0.0);
  Stream s(4242), replay(4242);
  HaplotypeMatrix m;
  for (int rep = 0; rep < 5; ++rep) {
    generator.Replicate(theta, -1, s.seed, s.random, s.poisson, m);
    EXPECT_EQ(generator.History().SitesInRegion(), 1000);
    const double t = -std::log(1.0 - Ran(replay.seed, replay.random)) / 2.0;
    EXPECT_GE(Ran(replay.seed, replay.random), 0.0);  // the kind of event
    const int a = static_cast<int>(2 * Ran(replay.seed, replay.random));
    int b = a;
    while (b == a) b = static_cast<int>(2 * Ran(replay.seed, replay.random));
    const auto mutations = static_cast<int>(PoissonDeviate(
        theta * 1000 / 1000 * (2.0 * t), replay.seed, replay.random, replay.poisson));
    const RecombinationStretches& st = generator.History().Stretches();
    ASSERT_EQ(st.StretchCount(), 1);
    EXPECT_EQ(st.Times(1)[2], t);
    ASSERT_EQ(m.Columns(), mutations);
    for (int c = 0; c < mutations; ++c) {
      const double x = Ran(replay.seed, replay.random) * (2.0 * t);
      const int carrier = x <= t ? 0 : 1;
      EXPECT_EQ(m.at(carrier, c), 1);
      EXPECT_EQ(m.at(1 - carrier, c), 0);
    }
  }
  EXPECT_EQ(Ran(s.seed, s.random), Ran(replay.seed, replay.random));
}

// Replays replicates of 2 sequences over 2 sites with R = 3 on an independent stream. Each
// chromosome is kept as its node in stretch {0} and in stretch {1} (-1 when it carries none);
// one carrying both has the one link. Per event: U for the waiting time -ln(1 - U) /
// (3 links + k (k - 1)); U for the kind, a recombination when 3 links / total > U; then for a
// recombination U for the link, int(links U) + 1, naming the chromosome (cut between sites 0 and
// 1, the right part appended); for a coalescence U for a and U's for b until it differs. The
// first coalescence in a stretch makes its root 2. Leavers are filled from the end, b first.
// Then a Poisson count per stretch of mean theta x 1/2 x 2 t(root), and one U per mutation
// whose x = U 2 t(root) marks sequence 0 when x <= t(root).
TEST(IntermediateRecombination, ReplayOfTwoSequencesOverTwoSites) {
  const double theta = 2.0, r = 3.0;
  IntermediateRecombination generator(2, 2, r);
  Stream s(9090), replay(9090);
  HaplotypeMatrix m;
  int recombined = 0;
  for (int rep = 0; rep < 40; ++rep) {
    generator.Replicate(theta, -1, s.seed, s.random, s.poisson, m);
    s.seed = 1;
    std::vector<std::vector<int>> carried{{0, 0}, {1, 1}};
    int links = 2;
    double time = 0.0;
    std::vector<double> rootTime{-1.0, -1.0};
    bool split = false;
    while (carried.size() >= 2) {
      const auto k = static_cast<double>(carried.size());
      const double recombination = r / 1 * links;
      const double total = recombination + k * (k - 1.0);
      time += -std::log(1.0 - Ran(replay.seed, replay.random)) / total;
      if (recombination / total <= Ran(replay.seed, replay.random)) {
        const int a = static_cast<int>(k * Ran(replay.seed, replay.random));
        int b = a;
        while (b == a) b = static_cast<int>(k * Ran(replay.seed, replay.random));
        const int first = std::min(a, b), second = std::max(a, b);
        std::vector<int> result{-1, -1};
        for (int site = 0; site < 2; ++site) {
          const int x = carried[static_cast<size_t>(first)][static_cast<size_t>(site)];
          const int y = carried[static_cast<size_t>(second)][static_cast<size_t>(site)];
          if (x >= 0 && y >= 0) {
            rootTime[static_cast<size_t>(site)] = time;
          } else {
            result[static_cast<size_t>(site)] = std::max(x, y);
          }
        }
        auto remove = [&carried](int i) {
          carried[static_cast<size_t>(i)] = carried.back();
          carried.pop_back();
        };
        if (result[0] < 0 && result[1] < 0) {
          remove(second);
          remove(first);
        } else {
          carried[static_cast<size_t>(first)] = result;
          remove(second);
        }
      } else {
        // Link x = int(links U) + 1 is the link of the x-th chromosome that carries both sites.
        int x = static_cast<int>(links * Ran(replay.seed, replay.random)) + 1;
        size_t c = 0;
        for (;; ++c) {
          if (carried[c][0] >= 0 && carried[c][1] >= 0 && --x == 0) break;
        }
        const int right = carried[c][1];
        carried[c][1] = -1;
        carried.push_back({-1, right});
        split = true;
      }
      links = 0;
      for (const auto& chromosome : carried) links += chromosome[0] >= 0 && chromosome[1] >= 0;
    }
    const RecombinationStretches& st = generator.History().Stretches();
    ASSERT_EQ(st.StretchCount(), split ? 2 : 1);
    recombined += split ? 1 : 0;
    std::vector<int> expectedCarrier;
    const int stretches = split ? 2 : 1;
    std::vector<int> counts;
    for (int p = 0; p < stretches; ++p) {
      const double t = rootTime[static_cast<size_t>(p)];
      EXPECT_EQ(st.Times(st.EntryAt(p))[2], t);
      const double length = split ? 1.0 : 2.0;
      counts.push_back(static_cast<int>(PoissonDeviate(theta * length / 2 * (2.0 * t), replay.seed,
                                                       replay.random, replay.poisson)));
    }
    for (int p = 0; p < stretches; ++p) {
      const double t = rootTime[static_cast<size_t>(p)];
      for (int i = 0; i < counts[static_cast<size_t>(p)]; ++i)
        expectedCarrier.push_back(Ran(replay.seed, replay.random) * (2.0 * t) <= t ? 0 : 1);
    }
    ASSERT_EQ(m.Columns(), static_cast<int>(expectedCarrier.size()));
    for (int c = 0; c < m.Columns(); ++c) {
      EXPECT_EQ(m.at(expectedCarrier[static_cast<size_t>(c)], c), 1);
      EXPECT_EQ(m.at(1 - expectedCarrier[static_cast<size_t>(c)], c), 0);
    }
  }
  EXPECT_EQ(Ran(s.seed, s.random), Ran(replay.seed, replay.random));
  EXPECT_GT(recombined, 5);
  EXPECT_LT(recombined, 35);
}

// With R = 0 the region is taken as 1000 sites whatever was given, and there is one genealogy.
TEST(IntermediateRecombination, ZeroRTakesTheRegionAsAThousandSites) {
  IntermediateRecombination generator(5, 2000, 0.0);
  Stream s(3);
  HaplotypeMatrix m;
  for (int rep = 0; rep < 20; ++rep) {
    generator.Replicate(3.0, -1, s.seed, s.random, s.poisson, m);
    EXPECT_EQ(generator.History().SitesInRegion(), 1000);
    EXPECT_EQ(generator.History().Stretches().StretchCount(), 1);
    EXPECT_EQ(generator.History().Stretches().Length(0), 1000);
  }
}

// In this time scale k lineages coalesce at rate k (k - 1), so the interval with k lineages
// lasts 1 / (k (k - 1)) on average and adds k such lengths to the tree: E[tree length] =
// sum_k 1 / (k - 1) = a1 in every stretch. A stretch of L sites receives theta L / sites x tree
// length mutations on average, so E[S] = theta a1 whatever R is. Recombination only lowers
// Var(S) below its value without recombination, theta a1 + theta^2 a2 (Watterson 1975), which
// sets the standard error of the mean.
TEST(IntermediateRecombination, MeanSegregatingSitesIsThetaA1) {
  const int n = 10, replicates = 3000;
  const double theta = 5.0;
  IntermediateRecombination generator(n, 100, 10.0);
  Stream s(8080);
  HaplotypeMatrix m;
  double sumS = 0.0;
  for (int rep = 0; rep < replicates; ++rep) {
    generator.Replicate(theta, -1, s.seed, s.random, s.poisson, m);
    s.seed = 1;
    sumS += m.Columns();
    int perStretch = 0;
    for (const int count : generator.StretchMutations()) perStretch += count;
    ASSERT_EQ(perStretch, m.Columns());
  }
  const double variance = theta * A1(n) + theta * theta * A2(n);
  EXPECT_NEAR(sumS / replicates, theta * A1(n), 5.0 * std::sqrt(variance / replicates));
}

// A replicate with S given, replayed step by step on a copy of the stream: the same history,
// then one U per mutation for its stretch with weights tree length x sites, then per stretch
// in site order one U per mutation for its branch, whose descendants carry the column.
TEST(IntermediateRecombination, FixedSReplaysStretchThenBranchDraws) {
  const int n = 7, sites = 300, segsites = 40;
  IntermediateRecombination generator(n, sites, 25.0);
  RecombinationHistory history(n, sites, 25.0);
  Stream s(4711);
  HaplotypeMatrix m;
  std::vector<double> weights, scratch;
  std::vector<int32_t> stack;
  for (int rep = 0; rep < 10; ++rep) {
    Stream replay = s;
    generator.Replicate(0.0, segsites, s.seed, s.random, s.poisson, m);
    history.Start();
    history.Run(replay.seed, replay.random);
    const RecombinationStretches& st = history.Stretches();
    ASSERT_EQ(st.StretchCount(), generator.History().Stretches().StretchCount());
    weights.clear();
    for (int p = 0; p < st.StretchCount(); ++p)
      weights.push_back(st.TreeLength(st.EntryAt(p)) * st.Length(p));
    std::vector<int32_t> counts(weights.size());
    SpreadFixedMutations(weights, segsites, replay.seed, replay.random, scratch, counts);
    EXPECT_EQ(counts, generator.StretchMutations());
    std::vector<int16_t> column(n);
    int c = 0;
    for (int p = 0; p < st.StretchCount(); ++p) {
      const int entry = st.EntryAt(p);
      for (int i = 0; i < counts[static_cast<size_t>(p)]; ++i, ++c) {
        const double x = Ran(replay.seed, replay.random) * st.TreeLength(entry);
        std::fill(column.begin(), column.end(), int16_t{0});
        MarkDescendants(st, entry, st.BranchAt(entry, x), column.data(), stack);
        for (int row = 0; row < n; ++row) ASSERT_EQ(m.at(row, c), column[static_cast<size_t>(row)]);
      }
    }
    EXPECT_EQ(c, segsites);
    s.seed = 1;
  }
}

// Whatever the recombination, a site's genealogy is a coalescent tree, so the expected number
// of columns with k mutants is theta / k (Fu 1995) when theta is given. Per k, the mean count
// over replicates is compared with theta / k within five standard errors taken from the
// replicates' own spread (columns of one replicate are not independent).
TEST(IntermediateRecombination, ColumnsFollowTheThetaOverKFrequencies) {
  const int n = 6, replicates = 3000;
  const double theta = 2.0;
  IntermediateRecombination generator(n, 100, 20.0);
  Stream s(31);
  HaplotypeMatrix m;
  std::vector<double> sum(n, 0.0), sumSquares(n, 0.0);
  for (int rep = 0; rep < replicates; ++rep) {
    generator.Replicate(theta, -1, s.seed, s.random, s.poisson, m);
    s.seed = 1;
    std::vector<int> counts(n, 0);
    for (int c = 0; c < m.Columns(); ++c) {
      int k = 0;
      for (int row = 0; row < n; ++row) k += m.at(row, c);
      ++counts[static_cast<size_t>(k)];
    }
    for (int k = 1; k < n; ++k) {
      sum[static_cast<size_t>(k)] += counts[static_cast<size_t>(k)];
      sumSquares[static_cast<size_t>(k)] +=
          static_cast<double>(counts[static_cast<size_t>(k)]) * counts[static_cast<size_t>(k)];
    }
  }
  for (int k = 1; k < n; ++k) {
    const double mean = sum[static_cast<size_t>(k)] / replicates;
    const double variance = sumSquares[static_cast<size_t>(k)] / replicates - mean * mean;
    EXPECT_NEAR(mean, theta / k, 5.0 * std::sqrt(variance / replicates)) << "k = " << k;
  }
}

// Var(Pi) without recombination is theta (n + 1) / (3 (n - 1)) + 2 theta^2 (n^2 + n + 3) /
// (9 n (n - 1)) (Tajima 1983). With free recombination the columns are independent: Var(Pi)
// = theta sum_k h_k^2 / k, h_k = k (n - k) / C(n, 2) (the compound Poisson variance).
// R = 0 and a tiny R must give Tajima's value; R = 100 falls below the middle of the two and
// not below the free value.
TEST(IntermediateRecombination, VarianceOfPiFallsTowardsFreeRecombination) {
  const int n = 10, replicates = 3000;
  const double theta = 5.0;
  const double linked = theta * (n + 1) / (3.0 * (n - 1)) +
                        2.0 * theta * theta * (n * n + n + 3.0) / (9.0 * n * (n - 1));
  double unlinked = 0.0;
  for (int k = 1; k < n; ++k) {
    const double h = k * (n - k) / (n * (n - 1) / 2.0);
    unlinked += theta * h * h / k;
  }
  ASSERT_LT(unlinked, linked / 3.0);

  for (const double r : {0.0, 0.001}) {
    const Spread pi = SpreadOf(PiOverReplicates(n, 1000, r, theta, replicates, 17));
    EXPECT_NEAR(pi.mean, theta, 5.0 * std::sqrt(linked / replicates)) << "R = " << r;
    EXPECT_NEAR(pi.variance, linked, 5.0 * pi.varianceError) << "R = " << r;
  }
  // A shorter region keeps the many stretches of R = 100 quick to simulate.
  const Spread high = SpreadOf(PiOverReplicates(n, 100, 100.0, theta, replicates / 2, 17));
  EXPECT_NEAR(high.mean, theta, 5.0 * std::sqrt(linked / (replicates / 2)));
  EXPECT_LT(high.variance + 5.0 * high.varianceError, (linked + unlinked) / 2.0);
  EXPECT_GT(high.variance + 5.0 * high.varianceError, unlinked);
}

// The S mutations fall on the weights in proportion: with weights 1, 2, 3, 4 and 20,000 draws
// the chi-square statistic (3 degrees of freedom) stays below 3 + 6 sqrt(6).
TEST(IntermediateRecombination, FixedMutationsSpreadByWeight) {
  const std::vector<double> weights{1.0, 2.0, 3.0, 4.0};
  std::vector<int32_t> counts(4);
  std::vector<double> scratch;
  Stream s(55);
  const int total = 20000;
  SpreadFixedMutations(weights, total, s.seed, s.random, scratch, counts);
  double chi = 0.0;
  int sum = 0;
  for (size_t i = 0; i < 4; ++i) {
    const double expected = total * weights[i] / 10.0;
    chi += (counts[i] - expected) * (counts[i] - expected) / expected;
    sum += counts[i];
  }
  EXPECT_EQ(sum, total);
  EXPECT_LT(chi, 3.0 + 6.0 * std::sqrt(6.0));
  // A zero weight never receives a mutation.
  const std::vector<double> withZero{0.0, 1.0};
  std::vector<int32_t> two(2);
  SpreadFixedMutations(withZero, 500, s.seed, s.random, scratch, two);
  EXPECT_EQ(two[0], 0);
  EXPECT_EQ(two[1], 500);
}

// In the generator with S given, the stretches of the left half of the region receive, given
// the trees, Binomial(S, p) mutations, p being their share of tree length x sites. Summed over
// replicates, (observed - sum S p) / sqrt(sum S p (1 - p)) is a standard normal deviate.
TEST(IntermediateRecombination, FixedSIsSpreadByTreeLengthTimesSites) {
  const int n = 8, sites = 200, segsites = 30, replicates = 1500;
  IntermediateRecombination generator(n, sites, 20.0);
  Stream s(123);
  HaplotypeMatrix m;
  double observed = 0.0, expected = 0.0, variance = 0.0;
  for (int rep = 0; rep < replicates; ++rep) {
    generator.Replicate(0.0, segsites, s.seed, s.random, s.poisson, m);
    s.seed = 1;
    ASSERT_EQ(m.Columns(), segsites);
    const RecombinationStretches& st = generator.History().Stretches();
    double left = 0.0, all = 0.0;
    int leftCount = 0;
    for (int p = 0; p < st.StretchCount(); ++p) {
      const double weight = st.TreeLength(st.EntryAt(p)) * st.Length(p);
      all += weight;
      if (st.FirstSite(p) < sites / 2) {
        left += weight;
        leftCount += generator.StretchMutations()[static_cast<size_t>(p)];
      }
    }
    const double share = left / all;
    observed += leftCount;
    expected += segsites * share;
    variance += segsites * share * (1.0 - share);
  }
  EXPECT_LT(std::fabs(observed - expected) / std::sqrt(variance), 5.0);
}

// Every column is a mutation on a branch below the root, so it has 1 to n - 1 mutants; with
// 2 sequences each column is a singleton.
TEST(IntermediateRecombination, ColumnsAreSegregating) {
  for (const int n : {2, 9}) {
    IntermediateRecombination generator(n, 300, 15.0);
    Stream s(77);
    HaplotypeMatrix m;
    for (int rep = 0; rep < 50; ++rep) {
      generator.Replicate(4.0, -1, s.seed, s.random, s.poisson, m);
      ASSERT_EQ(m.Rows(), n);
      for (int c = 0; c < m.Columns(); ++c) {
        int k = 0;
        for (int row = 0; row < n; ++row) k += m.at(row, c);
        ASSERT_GE(k, 1);
        ASSERT_LE(k, n - 1);
      }
    }
  }
}

TEST(IntermediateRecombination, SameSeedRepeatsExactly) {
  IntermediateRecombination first(12, 500, 30.0), second(12, 500, 30.0);
  Stream a(2718), b(2718);
  HaplotypeMatrix ma, mb;
  for (int rep = 0; rep < 20; ++rep) {
    first.Replicate(6.0, rep % 2 == 0 ? -1 : 25, a.seed, a.random, a.poisson, ma);
    second.Replicate(6.0, rep % 2 == 0 ? -1 : 25, b.seed, b.random, b.poisson, mb);
    a.seed = b.seed = 1;
    ASSERT_EQ(ma.Columns(), mb.Columns());
    for (int c = 0; c < ma.Columns(); ++c)
      for (int r = 0; r < 12; ++r) ASSERT_EQ(ma.at(r, c), mb.at(r, c));
  }
}

}  // namespace
}  // namespace ovelt
