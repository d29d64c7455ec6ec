// The "MEGA Data File" dialog's check: one character a symbol, no nucleotide letter and none of
// the characters NEXUS reserves, so that a file opened with its symbols can be saved again.

#include "formats/mega_dialog_check.h"

#include <gtest/gtest.h>

#include "formats/nexus_writer_options.h"

namespace ovelt {
namespace {

std::string Refusal(const std::string& match, const std::string& gap, const std::string& missing) {
  const auto refusal = CheckMegaSymbols(match, gap, missing);
  if (!refusal) return "";
  EXPECT_EQ(refusal->Title, "Invalid Selection ");
  return refusal->Text;
}

TEST(MegaDialogCheck, TheDefaultsAndOtherSymbolsPass) {
  EXPECT_EQ(Refusal(".", "-", "?"), "");
  EXPECT_EQ(Refusal("~", "_", "N"), "");
}

TEST(MegaDialogCheck, AnEmptyOrBlankSymbolIsMissingData) {
  EXPECT_EQ(Refusal("", "-", "?"), "Missing data");
  EXPECT_EQ(Refusal(".", " ", "?"), "Missing data");
  EXPECT_EQ(Refusal(".", "-", "??"), "Missing data");
}

TEST(MegaDialogCheck, ANucleotideIsRefusedByName) {
  EXPECT_EQ(Refusal("A", "-", "?"), "The Matching Symbol can not be a nucleotide: 'A'");
  EXPECT_EQ(Refusal(".", "u", "?"), "The Gap Symbol can not be a nucleotide: 'u'");
  EXPECT_EQ(Refusal(".", "-", "T"), "The Missing Symbol can not be a nucleotide: 'T'");
}

// The same characters the NEXUS options refuse, so that no symbol passes one and fails the other.
TEST(MegaDialogCheck, ReservedCharactersAreThoseOfTheNexusOptions) {
  EXPECT_EQ(Refusal(";", "-", "?"), "The Matching Symbol can not be ';': NEXUS reserves it");
  for (int c = 33; c < 127; ++c) {
    const std::string symbol(1, static_cast<char>(c));
    const bool refused = CheckMegaSymbols(symbol, "-", "?").has_value();
    EXPECT_EQ(refused, BlockedInSymbol(static_cast<char>(c))) << symbol;
  }
}

}  // namespace
}  // namespace ovelt
