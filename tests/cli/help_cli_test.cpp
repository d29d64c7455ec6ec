#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

#include "cli/cli_runner.h"
#include "shell/manual.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::RunOvelt;
using testing::TempDir;

// Points $OVELT_MANUAL at a folder for one test and puts back what was there.
class ManualAt {
 public:
  explicit ManualAt(const std::string& folder) {
    if (const char* old = std::getenv(kManualVariable)) old_ = old;
    setenv(kManualVariable, folder.c_str(), 1);
  }
  ~ManualAt() {
    if (old_)
      setenv(kManualVariable, old_->c_str(), 1);
    else
      unsetenv(kManualVariable);
  }
  ManualAt(const ManualAt&) = delete;
  ManualAt& operator=(const ManualAt&) = delete;

 private:
  std::optional<std::string> old_;
};

TEST(CliHelp, TheFactsThenThePageOfTheCommand) {
  TempDir home;
  ManualAt manual(OVELT_MANUAL_SOURCE);
  for (const char* key : {"tajima", "5", "Tajima's Test"}) {
    const auto r = RunOvelt({"help", key}, home.Path().string());
    EXPECT_EQ(r.status, 0) << key;
    const size_t facts = r.out.find("Command 5: Tajima's Test");
    const size_t page = r.out.find("\n# Tajima's Test\n");
    ASSERT_NE(facts, std::string::npos) << key;
    ASSERT_NE(page, std::string::npos) << key;
    EXPECT_LT(facts, page);
    EXPECT_NE(r.out.find("D = (k − S/a1) / sqrt(e1 S + e2 S (S − 1))"), std::string::npos);
    EXPECT_EQ(r.out.find("The manual was not found"), std::string::npos);
  }
}

TEST(CliHelp, APageWithoutACommandPrintsAlone) {
  TempDir home;
  ManualAt manual(OVELT_MANUAL_SOURCE);
  const auto calc = RunOvelt({"help", "calc"}, home.Path().string());
  EXPECT_EQ(calc.status, 0);
  EXPECT_EQ(calc.out.rfind("# Evolutionary Calculator\n", 0), 0U) << calc.out;
  const auto gaps = RunOvelt({"help", "gaps"}, home.Path().string());
  EXPECT_EQ(gaps.out.rfind("# Gaps and missing data\n", 0), 0U) << gaps.out;
  EXPECT_EQ(RunOvelt({"help", "nonsense"}, home.Path().string()).status, 2);
}

TEST(CliHelp, ACommandWithoutAPageAndAMissingManual) {
  TempDir home;
  {
    ManualAt manual(OVELT_MANUAL_SOURCE);
    const auto r = RunOvelt({"help", "1009"}, home.Path().string());
    EXPECT_EQ(r.status, 0);
    EXPECT_NE(r.out.find("Command 1009: HKA Test"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("\nThe manual has no page for this command.\n"), std::string::npos);
  }
  // A folder without index.md is no manual; nor is the test program's own folder.
  ManualAt manual(home.Path().string());
  const auto r = RunOvelt({"help", "tajima"}, home.Path().string());
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("Command 5: Tajima's Test"), std::string::npos);
  EXPECT_NE(r.out.find("\nThe manual was not found in: " + home.Path().string() + ", "),
            std::string::npos)
      << r.out;
  EXPECT_EQ(r.out.find("# Tajima's Test"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
