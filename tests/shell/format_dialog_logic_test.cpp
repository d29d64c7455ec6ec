#include "shell/format_dialog_logic.h"

#include <gtest/gtest.h>

#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

TEST(FormatDialogLogic, OffersTheValuesOfTheFile) {
  ActiveData ad = test::MakeAlignment({"ACG"});
  ad.Format.NucleotideType = 1;
  ad.Format.GenomeState = 1;
  ad.Format.ChromosomalLocation = 6;
  const GenomeFormatChoice choice = CurrentGenomeFormat(ad);
  EXPECT_EQ(choice.NucleotideType, 1);
  EXPECT_EQ(choice.GenomeState, 1);
  EXPECT_EQ(choice.ChromosomalLocation, 6);
}

TEST(FormatDialogLogic, DiploidOrganelleAndProkaryoteGenomesAskForConfirmation) {
  const ActiveData ad = test::MakeAlignment({"ACG"});
  for (int16_t location = 0; location <= 7; ++location) {
    const bool asks = DiploidQuestion(ad, {0, 0, location}).has_value();
    EXPECT_EQ(asks, location >= 5) << location;
    EXPECT_FALSE(DiploidQuestion(ad, {0, 1, location}).has_value()) << location;
  }
  EXPECT_EQ(DiploidQuestion(ad, {0, 0, 6}),
            std::string("Are you sure that the genome is Diploid ?\nInput data file: "
                        "/data/sample.fas"));
}

TEST(FormatDialogLogic, ApplyStoresTheChoiceAndReportsANewNucleotideType) {
  ActiveData ad = test::MakeAlignment({"ACG"});
  bool redraw = true;
  ASSERT_TRUE(ApplyGenomeFormat(ad, {0, 1, 2}, redraw));
  EXPECT_FALSE(redraw);
  EXPECT_EQ(ad.Format.GenomeState, 1);
  EXPECT_EQ(ad.Format.ChromosomalLocation, 2);
  ASSERT_TRUE(ApplyGenomeFormat(ad, {1, 1, 2}, redraw));
  EXPECT_TRUE(redraw);
  EXPECT_EQ(ad.Format.NucleotideType, 1);
}

TEST(FormatDialogLogic, OutOfRangeValuesChangeNothing) {
  ActiveData ad = test::MakeAlignment({"ACG"});
  bool redraw = false;
  EXPECT_FALSE(ApplyGenomeFormat(ad, {2, 0, 0}, redraw));
  EXPECT_FALSE(ApplyGenomeFormat(ad, {0, -1, 0}, redraw));
  EXPECT_FALSE(ApplyGenomeFormat(ad, {1, 1, 8}, redraw));
  EXPECT_EQ(ad.Format.NucleotideType, 0);
  EXPECT_EQ(ad.Format.GenomeState, 0);
  EXPECT_EQ(ad.Format.ChromosomalLocation, 0);
}

}  // namespace
}  // namespace ovelt
