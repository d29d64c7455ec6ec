#include <gtest/gtest.h>

#include <filesystem>

#include "shell/path_display.h"
#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

// Four sequences of six sites: site 2 is a singleton (T in sequence 3), site 4 has three
// variants (T C G G), site 6 has a gap in sequence 4.
constexpr const char* kFourSeqs =
    ">one\nACGTAA\n>two\nACGCAA\n>three\nATGGAA\n>four\nACGGA-\n";

class WorkbenchOpen : public ::testing::Test {
 protected:
  WorkbenchOpen() {
    p.ProgramDir = dir.Path().string();
    file = dir.Write("four.fas", kFourSeqs);
  }
  TempDir dir;
  ScriptedPlatform p;
  std::string file;
};

TEST_F(WorkbenchOpen, FillsTheFileAndIncludedLayersInOrder) {
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(file));
  const ActiveData& d = wb.Data();
  EXPECT_EQ(d.OpenFiles, 1);
  EXPECT_EQ(d.FileKind, kFasta);
  EXPECT_EQ(d.FileName, "four.fas");
  EXPECT_EQ(d.FilePath, file);
  EXPECT_EQ(d.TotalSeqs, 4);
  EXPECT_EQ(d.NumSeqs, 4);
  EXPECT_EQ(d.NumSites, 6);
  EXPECT_EQ(d.RawNames[3], "three               ");
  EXPECT_EQ(d.IncNames[3], d.RawNames[3]);
  ASSERT_EQ(d.SeqIncluded.size(), 5u);
  EXPECT_TRUE(d.SeqIncluded[1] && d.SeqIncluded[4]);
  // Classes worked out by hand.
  const std::vector<int16_t> classes = {0, 0, 1, 0, 3, 0, 5};
  EXPECT_EQ(d.SiteClass, classes);
  EXPECT_EQ(d.RawSiteClass, classes);
  // Gene diversity of site 2: counts C=3, T=1; (1 - (9 + 1) / 16) * 4 / 3 = 0.5.
  EXPECT_DOUBLE_EQ(d.SiteDiversity[2], 0.5);
  // Site 4: T=1, C=1, G=2; (1 - 6 / 16) * 4 / 3 = 5 / 6.
  EXPECT_DOUBLE_EQ(d.SiteDiversity[4], 5.0 / 6.0);
  // Site 6: one gap symbol among the sequences.
  EXPECT_DOUBLE_EQ(d.SiteDiversity[6], 1.0);
  EXPECT_EQ(d.Region.RegionFrom, 1);
  EXPECT_EQ(d.Region.RegionTo, 6);
  EXPECT_EQ(d.Format.Interleaved, 0);
  EXPECT_EQ(d.Format.BlockLength, 60);
  EXPECT_EQ(d.Format.GeneticCodeIndex, 1);
  EXPECT_EQ(d.Format.CodingAssigned, -1);
  EXPECT_EQ(d.GapsInSets, 1);
  // The included layer shares the file layer's cells until an exclusion.
  EXPECT_TRUE(d.IncMatrix.shares_cells_with(d.RawMatrix));
  EXPECT_EQ(wb.WindowTitle(), "Ovelt Workbench - four.fas");
  EXPECT_EQ(p.WindowTitles.back(), "Ovelt Workbench - four.fas");
  // Status: reading, processing, then idle.
  ASSERT_GE(p.StatusTexts.size(), 3u);
  EXPECT_NE(std::find(p.StatusTexts.begin(), p.StatusTexts.end(),
                      "Reading File: " + ftCortarNombre(file, 29) + "..."),
            p.StatusTexts.end());
  EXPECT_NE(std::find(p.StatusTexts.begin(), p.StatusTexts.end(), "Processing Data..."),
            p.StatusTexts.end());
  EXPECT_EQ(p.StatusTexts.back(), "For Help, press F1");
}

TEST_F(WorkbenchOpen, MenusFollowTheOpenFile) {
  Workbench wb(p);
  const MenuModel& m = wb.Menus();
  EXPECT_TRUE(m.Enabled("leer_Click"));
  EXPECT_FALSE(m.Enabled("del_Click"));
  EXPECT_FALSE(m.Enabled("MenuDnaPol_Click"));
  EXPECT_TRUE(m.Enabled("MenuConcatenateDataFiles_Click"));
  EXPECT_TRUE(m.Enabled("MenuCalculator_Click"));
  EXPECT_TRUE(m.Enabled("MenuIndependence_Click"));
  EXPECT_TRUE(m.Enabled("contenido_Click"));
  ASSERT_TRUE(wb.OpenPath(file));
  EXPECT_FALSE(m.Enabled("leer_Click"));
  EXPECT_TRUE(m.Enabled("del_Click"));
  EXPECT_TRUE(m.Enabled("MenuDnaPol_Click"));
  EXPECT_TRUE(m.Enabled("MenuIncluirSeqs_Click"));
  EXPECT_TRUE(m.Enabled("DataInformacion_Click"));
  EXPECT_FALSE(m.Enabled("MenuConcatenateDataFiles_Click"));
  EXPECT_FALSE(m.Enabled("MenuUpdateNEXUS_Click"));  // not a NEXUS file
  EXPECT_FALSE(m.Enabled("mnuFicheros_Click(1)"));
  EXPECT_TRUE(m.Enabled("MenuCalculator_Click"));
  // The recent list now holds the file, shown as "&1 " path.
  EXPECT_EQ(m.Find("mnuFicheros_Click(1)")->text, "&1 " + file);
  EXPECT_TRUE(m.Find("mnuFicheros_Click(1)")->visible);
}

TEST_F(WorkbenchOpen, ASecondOpenIsImpossibleWhileAFileIsOpen) {
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(file));
  const std::string other = dir.Write("other.fas", ">x\nAAAA\n>y\nAAAT\n");
  EXPECT_FALSE(wb.OpenPath(other));
  EXPECT_EQ(wb.Data().FileName, "four.fas");
}

TEST_F(WorkbenchOpen, AFailedReadLeavesEveryLayerAsItWas) {
  Workbench wb(p);
  const std::string bad = dir.Write("bad.fas", ">a\nACGT\n>b\nACGTA\n");
  EXPECT_FALSE(wb.OpenPath(bad));
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_NE(p.Boxes[0].Text.find("Sequences are of unequal lengths"), std::string::npos);
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  const ActiveData& d = wb.Data();
  EXPECT_EQ(d.OpenFiles, 0);
  EXPECT_EQ(d.TotalSeqs, 0);
  EXPECT_EQ(d.NumSites, 0);
  EXPECT_EQ(d.Region.RegionTo, 0);
  EXPECT_TRUE(d.FilePath.empty());
  EXPECT_FALSE(wb.Menus().Enabled("MenuDnaPol_Click"));
  EXPECT_TRUE(wb.Menus().Enabled("leer_Click"));
  EXPECT_EQ(wb.WindowTitle(), "Ovelt Workbench");
  EXPECT_EQ(wb.Recent().Count(), 0);  // a failed open is not remembered
}

TEST_F(WorkbenchOpen, AFileWithNoSequenceKeepsTheShellWithoutAFile) {
  Workbench wb(p);
  const std::string empty = dir.Write("empty.phy", "0 10\n");
  EXPECT_FALSE(wb.OpenPath(empty));
  EXPECT_FALSE(wb.FileOpen());
  EXPECT_EQ(p.Boxes.size(), 1u);
  EXPECT_TRUE(wb.Menus().Enabled("leer_Click"));
}

TEST_F(WorkbenchOpen, AMissingFileIsReported) {
  Workbench wb(p);
  const std::string gone = dir.File("gone.fas");
  EXPECT_FALSE(wb.OpenPath(gone));
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Input data file:  " + gone + " File not found or already open");
}

TEST_F(WorkbenchOpen, TheOpenDialogOffersTheDataFileFilter) {
  Workbench wb(p);
  p.OpenNames.push_back(file);
  ASSERT_TRUE(wb.fbLeer1(0));
  ASSERT_EQ(p.OpenDialogs.size(), 1u);
  EXPECT_EQ(p.OpenDialogs[0],
            "Open Data File|All Data Files|*.fas;*.meg;*.nbr;*.nex;*.phy;*.pir;*.fasta;*.fa;*.fna;"
            "*.nexus;*.nxs;*.phylip;*.mega|FASTA Files "
            "(*.fas)|*.fas|MEGA Files (*.meg)|*.meg|NBRF/PIR files (*.nbr;*.pir)|*.nbr;*.pir|"
            "NEXUS files (*.nex)|*.nex|PHYLIP files (*.phy)|*.phy|All files (*.*)|*.*");
  EXPECT_TRUE(wb.FileOpen());
}

TEST_F(WorkbenchOpen, CancellingTheOpenDialogOpensNothing) {
  Workbench wb(p);
  EXPECT_FALSE(wb.fbLeer1(0));
  EXPECT_FALSE(wb.FileOpen());
  EXPECT_TRUE(p.Boxes.empty());
}

TEST_F(WorkbenchOpen, ARecentEntryWhoseFileWasDeletedSaysFileNotFoundAndStays) {
  {
    Workbench first(p);
    ASSERT_TRUE(first.OpenPath(file));
  }
  std::filesystem::remove(file);
  Workbench wb(p);
  ASSERT_EQ(wb.Recent().Entry(1), file);
  EXPECT_FALSE(wb.fbLeer1(1));
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "File not found: \n\n" + file);
  EXPECT_EQ(wb.Recent().Entry(1), file);
  EXPECT_TRUE(wb.Menus().Find("mnuFicheros_Click(1)")->visible);
}

TEST_F(WorkbenchOpen, ARecentEntryOpensAndMovesToTheTop) {
  const std::string other = dir.Write("other.fas", ">x\nAAAA\n>y\nAAAT\n");
  {
    Workbench first(p);
    ASSERT_TRUE(first.OpenPath(file));
    ASSERT_TRUE(first.CloseFile(false));
    ASSERT_TRUE(first.OpenPath(other));
  }
  Workbench wb(p);
  ASSERT_EQ(wb.Recent().Entry(2), file);
  ASSERT_TRUE(wb.fbLeer1(2));
  EXPECT_EQ(wb.Data().FilePath, file);
  EXPECT_EQ(wb.Recent().Entry(1), file);
  EXPECT_EQ(wb.Recent().Entry(2), other);
}

TEST_F(WorkbenchOpen, LineEndsOfAllKindsLeaveNoTemporaryFileBehind) {
  const std::string cr = dir.Write("cr.fas", ">a\rACGT\r>b\rACGA\r");
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(cr));
  EXPECT_EQ(wb.Data().NumSites, 4);
  for (const auto& entry : std::filesystem::directory_iterator(dir.Path()))
    EXPECT_NE(entry.path().extension(), ".ric");
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

// A file named relative to the working directory (as on a command line) is listed whole, so
// that the entry opens it again from anywhere.
TEST(WorkbenchRecent, ARelativePathIsListedWhole) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  dir.Write("rel.fas", ">a\nACGT\n>b\nACGA\n");
  std::filesystem::create_directory(dir.Path() / "sub");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(dir.Path());
  Workbench wb(p);
  const bool opened = wb.OpenPath("./sub/../rel.fas");
  std::filesystem::current_path(before);
  ASSERT_TRUE(opened);
  const std::string whole =
      (std::filesystem::absolute(dir.Path()) / "rel.fas").lexically_normal().string();
  EXPECT_EQ(wb.Recent().Entry(1), whole);
  // The list on the disk holds the same line.
  Workbench again(p);
  EXPECT_EQ(again.Recent().Entry(1), whole);
}

}  // namespace
}  // namespace ovelt
