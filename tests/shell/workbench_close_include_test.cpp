#include <gtest/gtest.h>

#include "core/sequence_sets.h"
#include "shell/data_information.h"
#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

// Site 3 has a gap in sequence 2 only; sites 1 and 5 are variable.
constexpr const char* kGapSeqs = ">a\nACGTA\n>b\nAC-TA\n>c\nTCGTC\n>d\nTCGTA\n";

class Session : public ::testing::Test {
 protected:
  Session() {
    p.ProgramDir = dir.Path().string();
    path = dir.Write("gaps.fas", kGapSeqs);
    EXPECT_TRUE(wb.OpenPath(path));
  }
  TempDir dir;
  ScriptedPlatform p;
  Workbench wb{p};
  std::string path;
};

TEST_F(Session, CloseAsksAndNoKeepsTheFile) {
  EXPECT_FALSE(wb.CloseFile());
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Close file ? \nInput data file: " + path);
  EXPECT_EQ(p.Boxes[0].Buttons, MsgButtons::kYesNo);
  EXPECT_TRUE(p.Boxes[0].DefaultSecond);
  EXPECT_TRUE(wb.FileOpen());
}

TEST_F(Session, CloseEmptiesEveryLayerButKeepsTheSettings) {
  ASSERT_FALSE(AddSequenceSet(wb.Data(), "A", {1, 2}).has_value());
  wb.Data().GapsInWindow = true;
  wb.Data().UseMutations = true;
  p.Answers.push_back(MsgAnswer::kYes);
  ASSERT_TRUE(wb.CloseFile());
  const ActiveData& d = wb.Data();
  EXPECT_EQ(d.OpenFiles, 0);
  EXPECT_EQ(d.Region.RegionTo, 0);
  EXPECT_EQ(d.SetCount(), 0);
  EXPECT_TRUE(d.RawMatrix.empty());
  EXPECT_TRUE(d.IncMatrix.empty());
  EXPECT_TRUE(d.GapsInWindow);
  EXPECT_TRUE(d.UseMutations);
  EXPECT_EQ(wb.WindowTitle(), "Ovelt Workbench");
  EXPECT_TRUE(wb.Menus().Enabled("leer_Click"));
  EXPECT_FALSE(wb.Menus().Enabled("del_Click"));
  // And a file opens again.
  EXPECT_TRUE(wb.OpenPath(path));
  EXPECT_EQ(wb.Data().GapsInSets, 1);
}

TEST_F(Session, ExitAsksOnlyWithAFileOpen) {
  EXPECT_FALSE(wb.salida_programa());
  EXPECT_EQ(p.LastBox(), "       Exit Ovelt ? ");
  ASSERT_TRUE(wb.CloseFile(false));
  const size_t boxes = p.Boxes.size();
  EXPECT_TRUE(wb.salida_programa());
  EXPECT_EQ(p.Boxes.size(), boxes);
}

TEST_F(Session, ExcludingASequenceRebuildsTheIncludedLayer) {
  ActiveData& d = wb.Data();
  EXPECT_EQ(d.SiteClass[3], kGapOrMissing);
  ASSERT_TRUE(wb.IncludeSequences({false, true, false, true, true}, 1));
  EXPECT_EQ(d.NumSeqs, 3);
  EXPECT_EQ(d.TotalSeqs, 4);
  EXPECT_FALSE(d.IncMatrix.shares_cells_with(d.RawMatrix));
  EXPECT_EQ(d.IncNames[2], FixedName("c"));
  // The gap lay in the excluded sequence only: the site is monomorphic again.
  EXPECT_EQ(d.SiteClass[3], kMonomorphic);
  // Site 1: A, T, T over three sequences: a singleton; diversity (1 - 5/9) * 3/2 = 2/3.
  EXPECT_EQ(d.SiteClass[1], kSingletonSite);
  EXPECT_DOUBLE_EQ(d.SiteDiversity[1], 2.0 / 3.0);
  // With GapsInSets 2 the file's class 5 holds in every subset.
  ASSERT_TRUE(wb.IncludeSequences({false, true, false, true, true}, 2));
  EXPECT_EQ(d.SiteClass[3], kGapOrMissing);
}

TEST_F(Session, NoSequenceTickedIsRefusedAndNothingChanges) {
  ASSERT_FALSE(wb.IncludeSequences({false, false, false, false, false}, 1));
  EXPECT_EQ(p.LastBox(), "The active data file must contain at least one sequence.");
  EXPECT_EQ(wb.Data().NumSeqs, 4);
}

TEST_F(Session, DataInformationRows) {
  ASSERT_FALSE(AddSequenceSet(wb.Data(), "A", {1, 2}).has_value());
  ASSERT_TRUE(wb.IncludeSequences({false, true, true, true, false}, 1));
  const std::vector<InfoRow> expected = {
      {"Number of Nucleotides", "5"},
      {"Total Number of Sequences", "4"},
      {"   Sequences Used", "3"},
      {"File Format", "FASTA"},
      {"   Type", "Sequential"},
      {"Nucleotide Sequence", "DNA"},
      {"Genome", "Diploid"},
      {"Chromosomal Location", "Autosome"},
      {"Codon Assignation", "No"},
      {"Genetic Code", "Nuclear Universal"},
      {"Preferred Codons Table", "Drosophila_melanogaster"},
      {"Sequence Sets Definition", "Yes"},
      {"   Total Number of Subsets", "1"},
      {"Domain Sets Definition", "No"},
      {"   Total Number of Domains", "---"},
  };
  EXPECT_EQ(DataInformationRows(wb.Data()), expected);
  const std::string text = DataInformationText(expected);
  EXPECT_EQ(text.substr(0, 33), " Number of Nucleotides         5\r");
}

TEST(DataInformation, InterleavedTypeShowsTheBlock) {
  ActiveData d;
  d.Format.Interleaved = 1;
  d.Format.BlockLength = 50;
  d.FileKind = kPhylip;
  const auto rows = DataInformationRows(d);
  EXPECT_EQ(rows[3].second, "PHYLIP");
  EXPECT_EQ(rows[4].second, "Interleaved (Block = 50)");
}

// Every kind of file shows the genetic code its codons are read with; a NEXUS file that names
// none (no CODONS block) is read with the universal code.
TEST(DataInformation, EveryFileKindShowsItsGeneticCode) {
  const std::string corpus = std::string(OVELT_TEST_DATA) + "/corpus/";
  for (const char* file : {"fasta/jmodeltest_aP6.fas", "nbrf/biopython_clustalw.pir",
                           "mega/mega_D-loop_Vigilant.meg", "phylip/bioperl_noninterleaved.phy",
                           "nexus/phangorn_woodmouse.nxs", "nexus/jmodeltest_Hex_EF1a.nex"}) {
    TempDir dir;
    ScriptedPlatform p;
    p.ProgramDir = dir.Path().string();
    Workbench wb(p);
    ASSERT_TRUE(wb.OpenPath(corpus + file)) << file;
    const auto rows = DataInformationRows(wb.Data());
    ASSERT_EQ(rows[9].first, "Genetic Code");
    EXPECT_EQ(rows[9].second, "Nuclear Universal") << file;
  }
}

TEST(WorkbenchIndependence, TwoWorkbenchesDoNotShareState) {
  TempDir dir;
  ScriptedPlatform p1, p2;
  p1.ProgramDir = p2.ProgramDir = dir.Path().string();
  Workbench one(p1), two(p2);
  ASSERT_TRUE(one.OpenPath(dir.Write("x.fas", ">a\nAC\n>b\nAT\n")));
  EXPECT_TRUE(one.FileOpen());
  EXPECT_FALSE(two.FileOpen());
  EXPECT_EQ(two.Data().NumSites, 0);
}

}  // namespace
}  // namespace ovelt
