// Refusals on the command line say why: a " Invalid Selection " box is followed by the reason a
// user without the dialog's fields needs; and the smaller refusals of the options themselves.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::RunOvelt;
using testing::TempDir;

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";

class RefusalsCli : public ::testing::Test {
 protected:
  testing::CliResult Run(std::vector<std::string> args) {
    return RunOvelt(std::move(args), home_.Path().string());
  }
  TempDir home_;
};

TEST_F(RefusalsCli, AnInvalidSelectionSaysWhy) {
  auto r = Run({"dna-polymorphism", kExample, "--from", "5", "--to", "1000"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err,
            "Ovelt:\n Invalid Selection \n"
            "The region 5-1000 is not within the sites, which run from 1 to 900.\n");
  r = Run({"tajima", kExample, "--from", "300", "--to", "200"});
  EXPECT_EQ(r.err,
            "Ovelt:\n Invalid Selection \n"
            "The region 300-200 ends before it begins (the sites run from 1 to 900).\n");
  r = Run({"info", kExample, "--coding", "5-901"});
  EXPECT_EQ(r.err, "Ovelt:\n Invalid Selection \n"
                   "The region 5-901 is not within the sites, which run from 1 to 900.\n");
  r = Run({"dna-polymorphism", kExample, "--sliding-window", "--window", "10", "--step", "20"});
  EXPECT_EQ(r.err, "Ovelt:\n Invalid Selection \n"
                   "The window length (10) is shorter than the step size (20).\n");
  r = Run({"population-size-changes", kExample, "--to", "5000"});
  EXPECT_NE(r.err.find(" Invalid Selection \nThe region 1-5000 is not within"), std::string::npos)
      << r.err;
  r = Run({"multidomain", kExample, "--domain", "A=1-2000"});
  EXPECT_NE(r.err.find(" Invalid Selection \nDomains are NAME=FROM-TO"), std::string::npos) << r.err;
}

TEST_F(RefusalsCli, ASetTooSmallIsNamed) {
  const auto r = Run({"tajima", kExample, "--set-def", "Few=1-3", "--set", "Few"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Ovelt:\nAt least 4 sequences are needed for the present analysis\n\n"
                   "Invalid Selection !\nThe set Few holds 3 included sequences.\n");
}

TEST_F(RefusalsCli, TheOutgroupIsAnotherSetThanTheIntraspecificData) {
  auto r = Run({"fu-li-outgroup", kExample, "--set-def", "A=1-6", "--set-def", "B=7-12", "--set",
                "A", "--outgroup", "A"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Ovelt:\nThe Intraspecific Data and the Outgroup must be two different "
                   "Sequence Sets.\n");
  EXPECT_TRUE(r.out.empty());
  r = Run({"fu-li-outgroup", kExample, "--set-def", "A=1-6", "--set-def", "B=7-12", "--set", "A",
           "--outgroup", "B"});
  EXPECT_EQ(r.status, 0) << r.err;
}

TEST_F(RefusalsCli, AGraphNameWithoutAPictureExtensionIsRefusedBeforeTheRun) {
  const std::string graph = home_.File("g.xyz");
  const auto r = Run({"dna-polymorphism", kExample, "--sliding-window", "--graph", graph});
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find("names no picture format: end the name in .png, .svg or .bmp"),
            std::string::npos)
      << r.err;
  EXPECT_TRUE(r.out.empty());
  EXPECT_FALSE(std::filesystem::exists(graph));
}

TEST_F(RefusalsCli, TheGridGoesToStandardOutputForADash) {
  const auto r = Run({"dna-polymorphism", kExample, "--sliding-window", "--grid", "-", "--json",
                      home_.File("x.json")});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_FALSE(std::filesystem::exists("-"));
  EXPECT_NE(r.out.find("\nstart\tend\tnet_sites\tmidpoint\t"), std::string::npos) << r.out;
}

TEST_F(RefusalsCli, ThreadsOutOfRangeSayTheRangeInPlainNumbers) {
  const auto r = Run({"coalescent", "--threads", "0"});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("Threads must be from 1 to 256; it is 0."), std::string::npos) << r.err;
  EXPECT_LT(r.err.size(), 200u);
}

TEST_F(RefusalsCli, ARunWithoutEffectiveReplicatesSaysSo) {
  const auto r = Run({"coalescent", "--theta", "1e-7", "--n", "10", "--replicates", "50"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("   Effective Number of Replicates: 0"), std::string::npos);
  EXPECT_NE(r.err.find("There are 0 effective replicates: no replicate gave a value of Tajima's D."),
            std::string::npos)
      << r.err;
  const auto usual = Run({"coalescent", "--theta", "5", "--n", "10", "--replicates", "50"});
  EXPECT_EQ(usual.err.find("effective replicates"), std::string::npos) << usual.err;
}

// A question that the desktop answers with a dialog ("Do you want to define them?") is
// answered here by flags: the refusal names them, whatever the answer.
TEST_F(RefusalsCli, ARefusalForWantOfSetsNamesTheFlagsThatDefineThem) {
  const std::string line =
      "On the command line, --set-def NAME=LIST defines a sequence set (one flag for each set); "
      "--set NAME and --outgroup NAME take them for the run.\n";
  for (const bool yes : {false, true}) {
    std::vector<std::string> args = {"fu-li-outgroup", kExample};
    if (yes) args.push_back("--yes");
    const auto r = Run(args);
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Do you want to define them?"), std::string::npos) << r.err;
    ASSERT_GE(r.err.size(), line.size());
    EXPECT_EQ(r.err.substr(r.err.size() - line.size()), line) << r.err;
  }
  // With the sets given by flags the question is not asked.
  const auto ok = Run({"fu-li-outgroup", kExample, "--set-def", "In=1-11", "--set-def", "Out=12",
                       "--set", "In", "--outgroup", "Out"});
  EXPECT_EQ(ok.status, 0) << ok.err;
  EXPECT_EQ(ok.err.find("On the command line"), std::string::npos);
}

TEST_F(RefusalsCli, ARefusalForWantOfACodingRegionNamesItsFlag) {
  const auto r = Run({"check", "codon-usage", kExample});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("No Protein Coding Region Defined !"), std::string::npos) << r.err;
  EXPECT_NE(r.err.find("On the command line, --coding FROM-TO[:FIRST] defines a protein coding "
                       "region.\n"),
            std::string::npos)
      << r.err;
  EXPECT_EQ(Run({"check", "codon-usage", kExample, "--coding", "1-900:1"}).status, 0);
}

}  // namespace
}  // namespace ovelt
