// Rm when the pairs of sites cannot be held: the run goes on and the report says "Not
// computed". The shortage is simulated by a gauge that throws std::bad_alloc once the pairs are
// being filled (the gauge rises from 10 there).

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "analyses/recombination/recombination_compute.h"
#include "command/command_failure.h"
#include "core/alignment_fixture.h"
#include "recombination/rm_example.h"

namespace ovelt {
namespace {

// A gauge that throws `Fault` the first time the pairs of sites report progress, and records
// every value it is given.
template <class Fault>
struct FailingGauge {
  std::vector<int> seen;
  bool thrown = false;
  void operator()(int percent) {
    seen.push_back(percent);
    if (!thrown && percent > 10 && percent < 100) {
      thrown = true;
      throw Fault("simulated");
    }
  }
};

struct BadAlloc : std::bad_alloc {
  explicit BadAlloc(const char*) {}
};

TEST(RmMemory, FewerThan5000SitesGiveStatus1) {
  const ActiveData ad = test::MakeAlignment(test::RmExampleRows());
  const Selection sel = SelectOneSet(ad, 0, {1, 9});
  FailingGauge<BadAlloc> gauge;
  const RmEstimate rm = EstimateRm(sel, 1, 9, [&gauge](int p) { gauge(p); });
  EXPECT_TRUE(gauge.thrown);
  EXPECT_EQ(rm.Status, 1);
  EXPECT_EQ(rm.Sites, 6);
  EXPECT_TRUE(rm.FourGametePairs.empty());
  EXPECT_TRUE(rm.Intervals.empty());
  for (const int p : gauge.seen) EXPECT_LT(p, 100);
}

TEST(RmMemory, From5000SitesStatus2AndTheGaugeGoesToTheEnd) {
  // 5,000 two-state sites over three sequences: 0/1 patterns 10 and 01 of sequences 2 and 3.
  std::vector<std::string> rows(3);
  for (int s = 0; s < 5000; ++s) {
    rows[0] += 'A';
    rows[1] += s % 2 == 0 ? 'G' : 'A';
    rows[2] += s % 2 == 0 ? 'A' : 'G';
  }
  const ActiveData ad = test::MakeAlignment(rows);
  const Selection sel = SelectOneSet(ad, 0, {1, 5000});
  FailingGauge<BadAlloc> gauge;
  const RmEstimate rm = EstimateRm(sel, 1, 5000, [&gauge](int p) { gauge(p); });
  EXPECT_EQ(rm.Status, 2);
  EXPECT_EQ(rm.Sites, 5000);
  ASSERT_FALSE(gauge.seen.empty());
  EXPECT_EQ(gauge.seen.back(), 100);
}

TEST(RmMemory, AnyOtherFaultFailsTheRun) {
  const ActiveData ad = test::MakeAlignment(test::RmExampleRows());
  const Selection sel = SelectOneSet(ad, 0, {1, 9});
  FailingGauge<std::runtime_error> gauge;
  try {
    (void)EstimateRm(sel, 1, 9, [&gauge](int p) { gauge(p); });
    FAIL() << "no failure";
  } catch (const CommandFailure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::kFailed);
    EXPECT_EQ(std::string(failure.what()),
              "Error computing Recombination Rm\n\nInput data file: /data/sample.fas");
  }
}

}  // namespace
}  // namespace ovelt
