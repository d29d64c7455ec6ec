#include <gtest/gtest.h>

#include <filesystem>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";

TEST(Cli, CommandsListsTheWholeTable) {
  TempDir home;
  const auto r = RunOvelt({"commands"}, home.Path().string());
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("1014  mcdonald-kreitman"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("Preferred and Unpreferred Synonymous Substitutions"), std::string::npos);
  EXPECT_NE(r.out.find("coding region, table, two sets, sets with sequences"), std::string::npos);
  // One line per command plus the head.
  EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 36);
}

TEST(Cli, HelpDescribesOneCommand) {
  TempDir home;
  const auto r = RunOvelt({"help", "tajima"}, home.Path().string());
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("Command 5: Tajima's Test"), std::string::npos);
  EXPECT_NE(r.out.find("four sequences"), std::string::npos);
  EXPECT_NE(r.out.find("Form9"), std::string::npos);
  EXPECT_EQ(RunOvelt({"help", "nonsense"}, home.Path().string()).status, 2);
  EXPECT_EQ(RunOvelt({"--help"}, home.Path().string()).status, 0);
  EXPECT_EQ(RunOvelt({"info", "--help"}, home.Path().string()).status, 0);
}

TEST(Cli, InfoPrintsTheDataInformationOfTheExample) {
  TempDir home;
  const auto r = RunOvelt({"info", kExample}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, "");
  EXPECT_NE(r.out.find(" Number of Nucleotides         900\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" Total Number of Sequences     12\n"), std::string::npos);
  EXPECT_NE(r.out.find(" File Format                   FASTA\n"), std::string::npos);
  EXPECT_EQ(r.out.find('\r'), std::string::npos);  // platform line ends on standard output
}

TEST(Cli, InfoAppliesTheDataSettings) {
  TempDir home;
  const auto r = RunOvelt({"info", kExample, "--set-def", "North=1-6", "--set-def", "South=7-12",
                           "--exclude", "3,5", "--coding", "1-900", "--genetic-code",
                           "mtDNA.Mam", "--location", "Mitochondrial", "--haploid"},
                          home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Sequences Used             10\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" Codon Assignation             Yes\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Genetic Code                  mtDNA Mammals\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Chromosomal Location          Mitochondrial\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Genome                        Haploid\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Total Number of Subsets    2\n"), std::string::npos);
}

TEST(Cli, InfoListsSetsDomainsAndCodingRegions) {
  TempDir home;
  const auto r = RunOvelt({"info", kExample, "--set-def", "North=1-6", "--set-def", "South=7-12",
                           "--inactive-set", "South", "--coding", "4-300:2", "--noncoding",
                           "100-120"},
                          home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  // Site 121 lies 117 sites (39 codons) after site 4, so it keeps position 2.
  EXPECT_NE(r.out.find("\n Sequence Sets:\n    North: 1-6  (6 sequences)\n    South: 7-12  (6 "
                       "sequences, excluded from analyses)\n Protein coding regions:\n    4-99  "
                       "(first site at codon position 2)\n    121-300  (first site at codon "
                       "position 2)\n"),
            std::string::npos)
      << r.out;
  const auto nexus = RunOvelt(
      {"info", std::string(OVELT_TEST_DATA) + "/corpus/nexus/biopython_codonposset.nex"},
      home.Path().string());
  ASSERT_EQ(nexus.status, 0) << nexus.err;
  EXPECT_NE(nexus.out.find(" File Format                   NEXUS\n"), std::string::npos);
  EXPECT_NE(nexus.out.find(" Protein coding regions:\n"), std::string::npos) << nexus.out;
}

TEST(Cli, BadSettingsAreRefusedWithTheirMessage) {
  TempDir home;
  const auto name = RunOvelt({"info", kExample, "--set-def", "Begin=1-3"}, home.Path().string());
  EXPECT_EQ(name.status, 1);
  EXPECT_NE(name.err.find("Invalid sequence set name"), std::string::npos) << name.err;
  const auto range = RunOvelt({"info", kExample, "--coding", "5-901"}, home.Path().string());
  EXPECT_EQ(range.status, 1);
  EXPECT_EQ(range.err, "Ovelt:\n Invalid Selection \n"
                       "The region 5-901 is not within the sites, which run from 1 to 900.\n");
  const auto none = RunOvelt({"info", kExample, "--include", "13"}, home.Path().string());
  EXPECT_EQ(none.status, 1);
  const auto all_out = RunOvelt({"info", kExample, "--exclude", "1-12"}, home.Path().string());
  EXPECT_EQ(all_out.status, 1);
  EXPECT_NE(all_out.err.find("The active data file must contain at least one sequence."),
            std::string::npos);
  const auto diploid = RunOvelt({"info", kExample, "--location", "Mitochondrial"},
                                home.Path().string());
  // A doubtful setting is taken only with consent.
  EXPECT_EQ(diploid.status, 1);
  EXPECT_NE(diploid.err.find("Are you sure that the genome is Diploid ?"), std::string::npos);
  EXPECT_NE(diploid.err.find("(answered Cancel; add --yes to answer OK)"), std::string::npos);
  const auto agreed = RunOvelt({"info", kExample, "--location", "Mitochondrial", "--yes"},
                               home.Path().string());
  EXPECT_EQ(agreed.status, 0) << agreed.err;
  EXPECT_NE(agreed.err.find("(answered OK)"), std::string::npos);
}

TEST(Cli, OutSessionAndGridFiles) {
  TempDir home;
  const std::string out = home.File("info.out");
  const std::string session = home.File("all.out");
  const std::string grid = home.File("info.tsv");
  const auto r = RunOvelt({"info", kExample, "--out", out, "--session", session, "--grid", grid},
                          home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string saved = ReadBytes(out);
  EXPECT_EQ(saved.rfind(" Ovelt  Ver. 4.00.5", 0), 0u);
  EXPECT_NE(saved.find("\r\n\r\n\r\nData Information \r\n ----------------\r\n Number of "
                       "Nucleotides         900\r\n"),
            std::string::npos)
      << saved;
  const std::string all = ReadBytes(session);
  EXPECT_NE(all.find("Data Information \r\n"), std::string::npos);
  EXPECT_NE(all.find(std::string(38, '<') + std::string(38, '>') + "\r\n\r\n"), std::string::npos);
  EXPECT_NE(all.find(" Ovelt Session Terminated on  "), std::string::npos);
  const std::string tsv = ReadBytes(grid);
  EXPECT_NE(tsv.find("Number of Nucleotides\t900\n"), std::string::npos) << tsv;
}

TEST(Cli, SitesReportsTheHeadAndTheClasses) {
  TempDir home;
  const std::string data = home.Write("small.fas", ">a\nACGTA\n>b\nAC-TA\n>c\nTCGTC\n>d\nTCGTA\n");
  const std::string grid = home.File("sites.tsv");
  const auto r = RunOvelt({"sites", data, "--grid", grid}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("\n Input Data File: " + data + "\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" Number of sequences: 4    Number of sequences used: 4\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find(" Selected region: 1-5   Number of sites: 5\n"), std::string::npos);
  EXPECT_NE(
      r.out.find(" Total number of sites (excluding sites with gaps / missing data): 4\n"),
      std::string::npos);
  // Sites 1 (A A T T: informative) and 5 (A A C A: singleton) segregate.
  EXPECT_NE(r.out.find(" Segregating sites: 2\n"), std::string::npos);
  const std::string tsv = ReadBytes(grid);
  // Site 3 has a gap: its class is named, its diversity 1 (as the window's 1.00000).
  EXPECT_NE(tsv.find("\n3\tgap or missing data\t1\t0\t4n\n"), std::string::npos) << tsv;
  // A set and a region.
  const auto s = RunOvelt({"sites", data, "--set-def", "AC=1,3", "--set", "AC", "--from", "2",
                           "--to", "5"},
                          home.Path().string());
  ASSERT_EQ(s.status, 0) << s.err;
  EXPECT_NE(s.out.find(" Population used: AC"), std::string::npos) << s.out;
  EXPECT_NE(s.out.find(" Selected region: 2-5   Number of sites: 4\n"), std::string::npos);
  const auto bad = RunOvelt({"sites", data, "--from", "4", "--to", "2"}, home.Path().string());
  EXPECT_EQ(bad.status, 1);
  EXPECT_EQ(bad.err, "Ovelt:\n Invalid Selection \n"
                     "The region 4-2 ends before it begins (the sites run from 1 to 5).\n");
}

TEST(Cli, CheckRunsTheRefusalsOfACommand) {
  TempDir home;
  const std::string three = home.Write("three.fas", ">a\nAC\n>b\nAT\n>c\nAT\n");
  const auto tajima = RunOvelt({"check", "tajima", three}, home.Path().string());
  EXPECT_EQ(tajima.status, 1);
  EXPECT_EQ(tajima.err, "Ovelt:\nFour or more sequences are needed to compute the Tajima's "
                        "Test.\nInput data file: " + three + "\n");
  const auto pol = RunOvelt({"check", "2", three}, home.Path().string());
  EXPECT_EQ(pol.status, 0) << pol.err;
  const auto sets = RunOvelt({"check", "gene-flow", three}, home.Path().string());
  EXPECT_EQ(sets.status, 1);
  EXPECT_NE(sets.err.find("(answered No; --yes answers Yes)"), std::string::npos);
  // Without a coding region every site is taken as noncoding: only with the user's consent.
  const auto syn = RunOvelt({"check", "synonymous", three}, home.Path().string());
  EXPECT_EQ(syn.status, 1);
  EXPECT_NE(syn.err.find("(answered Cancel; add --yes to answer OK)"), std::string::npos);
  const auto syn_yes = RunOvelt({"check", "synonymous", three, "--yes"}, home.Path().string());
  EXPECT_EQ(syn_yes.status, 0) << syn_yes.err;
  const auto needs_file = RunOvelt({"check", "dna-polymorphism"}, home.Path().string());
  EXPECT_EQ(needs_file.status, 1);
  EXPECT_EQ(RunOvelt({"check", "independence"}, home.Path().string()).status, 0);
}

TEST(Cli, RecentListsTheOpenedFiles) {
  TempDir home;
  ASSERT_EQ(RunOvelt({"info", kExample}, home.Path().string()).status, 0);
  const auto r = RunOvelt({"recent"}, home.Path().string());
  EXPECT_EQ(r.out, "1 " + kExample + "\n");
  EXPECT_TRUE(std::filesystem::exists(home.File("OVELTCFA.INI")));
}

// The recent-files list keeps whole paths, even of a file named relative to where the command
// line runs.
TEST(Cli, TheRecentListKeepsTheWholePathOfARelativeName) {
  TempDir home;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(std::filesystem::path(kExample).parent_path());
  const auto r = RunOvelt({"info", "example.fas"}, home.Path().string());
  std::filesystem::current_path(before);
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(RunOvelt({"recent"}, home.Path().string()).out,
            "1 " + std::filesystem::path(kExample).lexically_normal().string() + "\n");
}

}  // namespace
}  // namespace ovelt
