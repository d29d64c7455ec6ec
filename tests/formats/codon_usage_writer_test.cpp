// The CODONUSAGE block: a table worked out by hand, which tables go with a NEXUS file, and the
// check of the assigned table's genetic code.

#include "formats/codon_usage_writer.h"

#include <gtest/gtest.h>

#include "formats/data_file_writer.h"
#include "support/scripted_platform.h"
#include "writer_test_support.h"

namespace ovelt {
namespace {

// Codon index (T, C, A, G = 1..4): (a - 1) * 16 + (b - 1) * 4 + c.
constexpr int Codon(int a, int b, int c) { return (a - 1) * 16 + (b - 1) * 4 + c; }

CodPrefUnPref MyTable() {
  CodPrefUnPref table;
  table.sName("MyTable");
  table.creat(1, kUnpreferred);
  table.sFile(1);
  // Nine preferred codons: TTC TTG TCC TCG TAC TGC CTC CTG CCC.
  for (int index : {Codon(1, 1, 2), Codon(1, 1, 4), Codon(1, 2, 2), Codon(1, 2, 4), Codon(1, 3, 2),
                    Codon(1, 4, 2), Codon(2, 1, 2), Codon(2, 1, 4), Codon(2, 2, 2)})
    table.sPrefUnPref(index, kPreferred1);
  table.sPrefUnPref(Codon(4, 4, 2), kPreferred2);         // GGC
  table.sPrefUnPref(Codon(3, 3, 3), kUnknownPreference);  // AAA
  table.sPrefUnPref(Codon(4, 2, 2), kPreferred3);         // GCC: no head in the writer
  return table;
}

// The block of a NEXUS file holds each table as a table file does: heads on lines of their own,
// eight codons to a line behind eight blanks, classes in the order PREF*, PREF**, UNKNOWN.
TEST(CodonUsageWriter, BlockOfATableWorkedOutByHand) {
  const CodPrefUnPref table = MyTable();
  EXPECT_EQ(CodonUsageBlockOf({&table}),
            (std::vector<std::string>{
                "BEGIN CODONUSAGE;", "    PREFUNPREFCODONS GENETICCODE=Universal MyTable = ",
                "        PREF*:", "        TTC TTG TCC TCG TAC TGC CTC CTG", "        CCC,",
                "        PREF**:", "        GGC,", "        UNKNOWN:", "        AAA;", "END;"}));
  EXPECT_TRUE(CodonUsageBlockOf({}).empty());
}

TEST(CodonUsageWriter, ClassesNotInUseAreLeftOutAndTheCodeIsNamedAsInNexus) {
  CodPrefUnPref table;
  table.sName("Only");
  table.creat(2, kUnpreferred);
  table.sPrefUnPref(Codon(1, 1, 1), kPreferred1);  // TTT
  const std::vector<std::string> block = CodonUsageBlockOf({&table});
  EXPECT_EQ(block, (std::vector<std::string>{"BEGIN CODONUSAGE;",
                                             "    PREFUNPREFCODONS GENETICCODE=mtDNA.Mam Only = ",
                                             "        PREF*:", "        TTT;", "END;"}));
}

TEST(CodonUsageWriter, UserTablesOfTheDataCodeAndTheAssignedOne) {
  ActiveData ad = test::MakeAlignment({"ACG"});
  ad.PrefTables.creatModifyGC(MyTable());
  ad.PrefTableName = "None";
  EXPECT_FALSE(PrefTableAssigned(ad));
  auto names = [&](bool drop) {
    std::vector<std::string> out;
    for (const CodPrefUnPref* t : TablesForNexusFile(ad, drop)) out.push_back(t->name());
    return out;
  };
  EXPECT_EQ(names(false), std::vector<std::string>{"MyTable"});
  ad.PrefTableName = "Drosophila_melanogaster";
  EXPECT_TRUE(PrefTableAssigned(ad));
  EXPECT_EQ(names(false), (std::vector<std::string>{"Drosophila_melanogaster", "MyTable"}));
  EXPECT_EQ(names(true), std::vector<std::string>{"MyTable"});
  // Under another code neither goes with the file.
  ad.Format.GeneticCodeIndex = 2;
  EXPECT_TRUE(AssignedTableCodeDiffers(ad));
  EXPECT_TRUE(names(false).empty());
}

TEST(CodonUsageWriter, AssignedTableOfAnotherCodeIsAnnouncedAndLeftOut) {
  ActiveData ad = test::MakeAlignment({"ACG"});
  ad.PrefTableName = "Drosophila_melanogaster";
  testing::ScriptedPlatform platform;
  const std::vector<std::string> same = CodonUsageForNexus(ad, platform);
  EXPECT_TRUE(platform.Boxes.empty());
  ASSERT_FALSE(same.empty());
  ASSERT_GE(same.size(), 2u);
  EXPECT_EQ(same[1], "    PREFUNPREFCODONS GENETICCODE=Universal Drosophila_melanogaster = ");
  ad.Format.GeneticCodeIndex = 3;
  EXPECT_TRUE(CodonUsageForNexus(ad, platform).empty());
  EXPECT_EQ(platform.LastBox(),
            "The current Genetic Code does not agree with that assigned in the Pref-UnPref Table!");
}

TEST(CodonUsageWriter, NoneAndUnknownMeanNoTable) {
  ActiveData ad = test::MakeAlignment({"ACG"});
  for (const char* name : {"None", "NONE", "UnKnown", ""}) {
    ad.PrefTableName = name;
    EXPECT_FALSE(PrefTableAssigned(ad)) << name;
    EXPECT_FALSE(AssignedTableCodeDiffers(ad));
  }
}

}  // namespace
}  // namespace ovelt
