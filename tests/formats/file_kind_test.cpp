// Recognition of the file kind from the first line.

#include <gtest/gtest.h>

#include "core/active_data.h"
#include "formats/read_file.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::ErrorOf;

TEST(FileKind, TestsInOrder) {
  EXPECT_EQ(DetectFileKind(">DL;name"), kNbrf);
  EXPECT_EQ(DetectFileKind(">dL;name"), kNbrf);
  EXPECT_EQ(DetectFileKind(">DL"), kFasta);
  EXPECT_EQ(DetectFileKind(">name"), kFasta);
  EXPECT_EQ(DetectFileKind(">"), kFasta);
  EXPECT_EQ(DetectFileKind("#MEGA"), kMega);
  EXPECT_EQ(DetectFileKind("#mega"), kMega);
  EXPECT_EQ(DetectFileKind("#Mxyz"), kMega);
  EXPECT_EQ(DetectFileKind("#NEXUS"), kNexus);
  EXPECT_EQ(DetectFileKind("#nexus"), kNexus);
  EXPECT_EQ(DetectFileKind("#NEXU"), -1);
  EXPECT_EQ(DetectFileKind("6 13"), kPhylip);
  EXPECT_EQ(DetectFileKind(""), -1);
  EXPECT_EQ(DetectFileKind(";comment"), -1);
  EXPECT_EQ(DetectFileKind("ACGT"), -1);
}

TEST(FileKind, LeadingBlanksAndDigitsArePhylip) {
  EXPECT_EQ(DetectFileKind("   5   855   I"), kPhylip);
  EXPECT_EQ(DetectFileKind(" 6 631"), kPhylip);
  EXPECT_EQ(DetectFileKind("    7"), kPhylip);  // the end of the line ends the walk
  EXPECT_EQ(DetectFileKind("12345 6"), kPhylip);
}

TEST(FileKind, PhylipCountTest) {
  EXPECT_EQ(DetectFileKind("123456 7"), -1);  // six digits
  EXPECT_EQ(DetectFileKind("12a 7"), -1);
  EXPECT_EQ(DetectFileKind("5\t42"), -1);     // a tab is not a blank here
  EXPECT_EQ(DetectFileKind("     "), -1);
}

TEST(FileKind, BlankBeforeTheHeaderSignIsABadFile) {
  EXPECT_EQ(DetectFileKind(" >seq"), -1);
  EXPECT_EQ(ErrorOf(" >seq\nACGT\n"), "Input data file: t.txt\n\nBad or unknown file format");
}

TEST(FileKind, BlanksAndDigitsGoToThePhylipReader) {
  const LoadedFile f = ReadDataBuffer("  1 4\nname      ACGT\n", "t.txt");
  EXPECT_EQ(f.FileKind, kPhylip);
  EXPECT_EQ(f.NumSites, 4);
}

TEST(FileKind, NexusGoesToTheNexusReader) {
  const LoadedFile f = ReadDataBuffer(
      "#NEXUS\nbegin data;\ndimensions ntax=1 nchar=2;\nmatrix\na AC\n;\nend;\n", "t.txt");
  EXPECT_EQ(f.FileKind, kNexus);
  EXPECT_EQ(f.NumSites, 2);
  EXPECT_TRUE(f.Nexus.has_value());
}

}  // namespace
}  // namespace ovelt
