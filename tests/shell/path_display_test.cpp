#include <gtest/gtest.h>

#include "shell/path_display.h"

namespace ovelt {
namespace {

TEST(FtCortarNombre, ShortPathIsReturnedAsItIs) {
  EXPECT_EQ(ftCortarNombre("C:\\data\\a.fas", 29), "C:\\data\\a.fas");
  const std::string exactly29 = "/home/user/ab/cdefghijklm.fas";
  ASSERT_EQ(exactly29.size(), 29u);
  EXPECT_EQ(ftCortarNombre(exactly29, 29), exactly29);
}

TEST(FtCortarNombre, KeepsTrailingComponentsBehindTheFirstThreeCharacters) {
  // "C:\" + "..." takes 6 characters; 23 remain for "\Files\alignment.fas" (20) but not for
  // "\Project\Files\alignment.fas" (28).
  EXPECT_EQ(ftCortarNombre("C:\\Data\\Project\\Files\\alignment.fas", 29),
            "C:\\...\\Files\\alignment.fas");
  EXPECT_EQ(ftCortarNombre("/home/someone/projects/2026/drosophila/adh.fas", 29),
            "/ho.../drosophila/adh.fas");
}

TEST(FtCortarNombre, KeepsEveryComponentThatFits) {
  // Limit 30: "/ho..." (6) + "/2026/drosophila/adh.fas" (24) = 30 fits exactly.
  EXPECT_EQ(ftCortarNombre("/home/someone/projects/2026/drosophila/adh.fas", 30),
            "/ho.../2026/drosophila/adh.fas");
}

TEST(FtCortarNombre, FileNameLongerThanTheLimitIsKeptWhole) {
  const std::string name = "a_very_long_alignment_file_name_indeed.fas";
  EXPECT_EQ(ftCortarNombre("/data/" + name, 29), name);
}

TEST(LastPathComponent, WorksWithBothSeparators) {
  EXPECT_EQ(LastPathComponent("C:\\x\\y.fas"), "y.fas");
  EXPECT_EQ(LastPathComponent("/x/y.fas"), "y.fas");
  EXPECT_EQ(LastPathComponent("y.fas"), "y.fas");
}

}  // namespace
}  // namespace ovelt
