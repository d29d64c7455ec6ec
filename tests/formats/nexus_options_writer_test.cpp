// Form2, "Nexus File Format. Options": what it shows, what OK refuses and what it stores.

#include <gtest/gtest.h>

#include "formats/nexus_writer_options.h"

namespace ovelt {
namespace {

TEST(NexusSaveOptions, ShowsTheFileAttributesWithAnUnchosenVersionAsVersionOne) {
  const NexusSaveOptions o = NexusSaveOptionsFrom(FormatAttributes{});
  EXPECT_EQ(o.NexusVersion, 2);
  EXPECT_EQ(o.LineDelimiter, 1);
  EXPECT_TRUE(o.MatchSymbolOn);
  EXPECT_EQ(o.MatchSymbol, ".");
  EXPECT_EQ(o.MissingSymbol, "?");
  EXPECT_EQ(o.GapSymbol, "-");
  EXPECT_TRUE(o.Interleaved);
  EXPECT_EQ(o.BlockLength, 60);

  FormatAttributes f;
  f.NexusVersion = 1;
  f.LineDelimiter = 3;
  f.MatchSymbolOn = 0;
  f.GapSymbol = '~';
  f.Interleaved = 0;
  f.BlockLength = 25;
  const NexusSaveOptions shown = NexusSaveOptionsFrom(f);
  EXPECT_EQ(shown.NexusVersion, 1);
  EXPECT_EQ(shown.LineDelimiter, 3);
  EXPECT_FALSE(shown.MatchSymbolOn);
  EXPECT_EQ(shown.GapSymbol, "~");
  EXPECT_FALSE(shown.Interleaved);
  EXPECT_EQ(shown.BlockLength, 25);
}

TEST(NexusSaveOptions, DefaultButtonGivesTheDefaultsOfAFreshFile) {
  NexusSaveOptions o;
  o.LineDelimiter = 2;
  o.BlockLength = 7;
  o = DefaultNexusSaveOptions();
  EXPECT_EQ(o.LineDelimiter, 1);
  EXPECT_EQ(o.BlockLength, 60);
  EXPECT_EQ(o.NexusVersion, 2);
}

TEST(NexusSaveOptions, ReservedCharactersAndNucleotideLettersAreBlockedAtTyping) {
  for (char c : std::string("()[]{}/\\,;:=*'`<>AUTCGautcg"))
    EXPECT_EQ(TypedSymbol(std::string(1, c)), "") << c;
  EXPECT_EQ(TypedSymbol("N"), "N");
  EXPECT_EQ(TypedSymbol("~"), "~");
  // The field holds one character: the first that typing lets through.
  EXPECT_EQ(TypedSymbol("(x"), "x");
  EXPECT_EQ(TypedSymbol("ab"), "b");
}

TEST(NexusSaveOptions, ABlankSymbolIsMissingData) {
  for (const std::string& blank : {std::string(), std::string(" "), std::string("A")}) {
    NexusSaveOptions o;
    o.GapSymbol = blank;
    const auto refusal = ValidateNexusSaveOptions(o);
    ASSERT_TRUE(refusal.has_value()) << "'" << blank << "'";
    EXPECT_EQ(refusal->Text, "Missing data");
    EXPECT_EQ(refusal->Title, "Invalid Selection ");
  }
  NexusSaveOptions o;
  o.MatchSymbol = "";
  EXPECT_TRUE(ValidateNexusSaveOptions(o).has_value());
  o = NexusSaveOptions{};
  o.MissingSymbol = "=";
  EXPECT_TRUE(ValidateNexusSaveOptions(o).has_value());
}

TEST(NexusSaveOptions, ABlockBelowOneIsRefused) {
  NexusSaveOptions o;
  o.BlockLength = 0;
  const auto refusal = ValidateNexusSaveOptions(o);
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(refusal->Text, "The minimum number of nucleotides per block is 1");
  o.BlockLength = 1;
  EXPECT_FALSE(ValidateNexusSaveOptions(o).has_value());
}

TEST(NexusSaveOptions, ChoicesOutsideTheirButtonsAreRefused) {
  NexusSaveOptions o;
  o.LineDelimiter = 4;
  ASSERT_TRUE(ValidateNexusSaveOptions(o).has_value());
  EXPECT_EQ(ValidateNexusSaveOptions(o)->Text, " Invalid Selection ");
  o.LineDelimiter = 1;
  o.NexusVersion = 0;
  EXPECT_TRUE(ValidateNexusSaveOptions(o).has_value());
}

TEST(NexusSaveOptions, OkStoresTheFieldsInTheFormatAttributes) {
  NexusSaveOptions o;
  o.NexusVersion = 1;
  o.LineDelimiter = 2;
  o.MatchSymbolOn = false;
  o.MatchSymbol = "!";
  o.MissingSymbol = "N";
  o.GapSymbol = "~";
  o.Interleaved = false;
  o.BlockLength = 10;
  ASSERT_FALSE(ValidateNexusSaveOptions(o).has_value());
  FormatAttributes f;
  f.GenomeState = 1;
  ApplyNexusSaveOptions(o, f);
  EXPECT_EQ(f.NexusVersion, 1);
  EXPECT_EQ(f.LineDelimiter, 2);
  EXPECT_EQ(f.MatchSymbolOn, 0);
  EXPECT_EQ(f.MatchSymbol, '!');
  EXPECT_EQ(f.MissingSymbol, 'N');
  EXPECT_EQ(f.GapSymbol, '~');
  EXPECT_EQ(f.Interleaved, 0);
  EXPECT_EQ(f.BlockLength, 10);
  EXPECT_EQ(f.GenomeState, 1);  // not a field of this dialog
}

}  // namespace
}  // namespace ovelt
