#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

TEST(OneSequenceFile, LoadsAndAnalysesThatNeedMoreRefuseIt) {
  ActiveData ad = test::MakeAlignment({"ACG-T"});
  EXPECT_EQ(ad.TotalSeqs, 1);
  EXPECT_EQ(ad.NumSeqs, 1);
  const Selection sel = SelectOneSet(ad, 0, {1, 5});
  EXPECT_EQ(sel.SelOutCount, 1);
  const NetSiteCount count = CountNetSites(sel, 1, 5);
  EXPECT_EQ(count.Net, 4);
  EXPECT_EQ(count.SegSites, 0);
  // The commands that need two or four sequences refuse it (the registry's minima are checked
  // in the shell's tests).
  EXPECT_EQ(TooFewSequencesMessage(2),
            "At least 2 sequences are needed for the present analysis\n\nInvalid Selection !");
}

}  // namespace
}  // namespace ovelt
