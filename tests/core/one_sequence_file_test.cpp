#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

TEST(OneSequenceFile, LoadsAndAnalysesThatNeedMoreRefuseIt) {
  ActiveData ad = test::MakeAlignment({"ACG-T"});
  EXPECT_EQ(ad.TotalSeqs, 1);
  EXPECT_EQ(ad.NumSeqs, 1);
  SelectOneSet(ad, 0);
  EXPECT_EQ(ad.SelOutCount, 1);
  EXPECT_EQ(NetSites(ad, 1, 5), 4);
  EXPECT_EQ(ad.SegSites, 0);
  // Polymorphic sites (1) and the generators of files (22) run; DNA polymorphism (2) and
  // Tajima's test (5) are refused.
  EXPECT_EQ(MinimumSequences(1, ad.SelOutCount), 0);
  EXPECT_EQ(MinimumSequences(22, ad.SelOutCount), 0);
  EXPECT_EQ(TooFewSequencesMessage(MinimumSequences(2, ad.SelOutCount)),
            "At least 2 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(MinimumSequences(5, ad.SelOutCount), 4);
}

}  // namespace
}  // namespace ovelt
