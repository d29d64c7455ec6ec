#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

#include "shell/command_registry.h"
#include "shell/manual.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::TempDir;

const std::filesystem::path kSourceManual = OVELT_MANUAL_SOURCE;

// Sets or clears $OVELT_MANUAL for one test and puts back what was there.
class ManualVariable {
 public:
  explicit ManualVariable(const char* value) {
    if (const char* old = std::getenv(kManualVariable)) old_ = old;
    if (value != nullptr)
      setenv(kManualVariable, value, 1);
    else
      unsetenv(kManualVariable);
  }
  ~ManualVariable() {
    if (old_)
      setenv(kManualVariable, old_->c_str(), 1);
    else
      unsetenv(kManualVariable);
  }
  ManualVariable(const ManualVariable&) = delete;
  ManualVariable& operator=(const ManualVariable&) = delete;

 private:
  std::optional<std::string> old_;
};

void WritePage(const std::filesystem::path& root, const std::string& name,
               const std::string& text) {
  const std::filesystem::path file = root / (name + ".md");
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

// A small manual of three pages in `root`.
void WriteSmallManual(const std::filesystem::path& root) {
  WritePage(root, "index",
            "# Contents\n\n[Tajima](commands/tajima.md), [gaps](topics/gaps.md)\n");
  WritePage(root, "commands/tajima",
            "# Tajima's Test\n\nTajima's D compares k with S / a1. Tajima 1989.\n");
  WritePage(root, "topics/gaps", "# Gaps and missing data\n\nA gap is a site class of its own.\n");
}

// --- where the manual is ---

TEST(ManualLocation, CandidatesInOrderVariableThenBesideThenShare) {
  ManualVariable variable("/opt/pages");
  const auto candidates = ManualCandidates({"/usr/local/bin"});
  ASSERT_EQ(candidates.size(), 3U);
  EXPECT_EQ(candidates[0], std::filesystem::path("/opt/pages"));
  EXPECT_EQ(candidates[1], std::filesystem::path("/usr/local/bin/manual"));
  EXPECT_EQ(candidates[2], std::filesystem::path("/usr/local/share/ovelt/manual"));
  EXPECT_EQ(CandidatesText(candidates),
            "/opt/pages, /usr/local/bin/manual, /usr/local/share/ovelt/manual");
}

TEST(ManualLocation, FoundBesideTheProgram) {
  ManualVariable variable(nullptr);
  TempDir dir;
  WriteSmallManual(dir.Path() / "bin" / "manual");
  const auto found = FindManual({(dir.Path() / "bin").string()});
  ASSERT_TRUE(found);
  EXPECT_EQ(*found, dir.Path() / "bin" / "manual");
}

TEST(ManualLocation, FoundUnderTheInstallPrefix) {
  ManualVariable variable(nullptr);
  TempDir dir;
  std::filesystem::create_directories(dir.Path() / "bin");
  WriteSmallManual(dir.Path() / "share" / "ovelt" / "manual");
  const auto found = FindManual({(dir.Path() / "bin").string()});
  ASSERT_TRUE(found);
  EXPECT_EQ(*found, (dir.Path() / "share" / "ovelt" / "manual").lexically_normal());
}

TEST(ManualLocation, TheVariableComesFirst) {
  TempDir dir;
  WriteSmallManual(dir.Path() / "bin" / "manual");
  WriteSmallManual(dir.Path() / "elsewhere");
  ManualVariable variable((dir.Path() / "elsewhere").c_str());
  EXPECT_EQ(FindManual({(dir.Path() / "bin").string()}), dir.Path() / "elsewhere");
}

TEST(ManualLocation, AFolderWithoutIndexIsNoManual) {
  ManualVariable variable(nullptr);
  TempDir dir;
  WritePage(dir.Path() / "bin" / "manual", "commands/tajima", "# Tajima's Test\n");
  EXPECT_FALSE(FindManual({(dir.Path() / "bin").string()}));
  EXPECT_FALSE(FindManual({}));
}

// --- pages, lookup and search ---

TEST(ManualPages, IndexFirstThenByNameWithTheirTitles) {
  TempDir dir;
  WriteSmallManual(dir.Path());
  const auto pages = Manual(dir.Path()).Pages();
  ASSERT_EQ(pages.size(), 3U);
  EXPECT_EQ(pages[0].Name, "index");
  EXPECT_EQ(pages[0].Title, "Contents");
  EXPECT_EQ(pages[1].Name, "commands/tajima");
  EXPECT_EQ(pages[1].Title, "Tajima's Test");
  EXPECT_EQ(pages[2].Name, "topics/gaps");
}

TEST(ManualPages, ACommandByNameNumberOrTitleAndATopicByName) {
  TempDir dir;
  WriteSmallManual(dir.Path());
  const Manual manual(dir.Path());
  for (const char* key : {"tajima", "5", "Tajima's Test", "TAJIMA"}) {
    const auto page = manual.PageFor(key);
    ASSERT_TRUE(page) << key;
    EXPECT_EQ(page->Name, "commands/tajima") << key;
  }
  EXPECT_EQ(manual.PageFor("gaps")->Name, "topics/gaps");
  EXPECT_EQ(manual.PageFor("topics/gaps")->Name, "topics/gaps");
  // A command of the table without a page, a name of nothing, and a way out of the manual.
  EXPECT_FALSE(manual.PageFor("dna-divergence"));
  EXPECT_FALSE(manual.PageFor("nothing"));
  EXPECT_FALSE(manual.PageFor("../manual/index"));
  EXPECT_EQ(*manual.Text("topics/gaps"),
            "# Gaps and missing data\n\nA gap is a site class of its own.\n");
}

TEST(ManualSearch, EveryWordMustBeThereMostOccurrencesFirst) {
  TempDir dir;
  WriteSmallManual(dir.Path());
  const Manual manual(dir.Path());
  // "tajima" occurs twice in the index (the link's words and its page) and three times in the
  // page of the test.
  const auto hits = manual.Search("TAJIMA");
  ASSERT_EQ(hits.size(), 2U);
  EXPECT_EQ(hits[0].Page.Name, "commands/tajima");
  EXPECT_EQ(hits[0].Matches, 3);
  EXPECT_EQ(hits[1].Page.Name, "index");
  EXPECT_EQ(hits[1].Matches, 2);
  const auto both = manual.Search("tajima 1989");
  ASSERT_EQ(both.size(), 1U);
  EXPECT_EQ(both[0].Page.Name, "commands/tajima");
  EXPECT_TRUE(manual.Search("gap recombination").empty());
  EXPECT_TRUE(manual.Search("   ").empty());
}

// --- the manual of this program ---

TEST(ShippedManual, EveryBuiltCommandHasItsPage) {
  const Manual manual(kSourceManual);
  int built = 0;
  for (const CommandEntry& entry : Registry()) {
    if (!entry.Binding) continue;
    ++built;
    const auto page = manual.PageFor(entry.Facts.CliName);
    ASSERT_TRUE(page) << "no page of the manual for " << entry.Facts.CliName;
    EXPECT_EQ(page->Name, "commands/" + entry.Facts.CliName);
    EXPECT_FALSE(page->Title.empty()) << entry.Facts.CliName;
  }
  EXPECT_GE(built, 9);
  // The two tools of the command line that are not bindings of the registry.
  EXPECT_TRUE(manual.PageFor("distributions"));
  EXPECT_TRUE(manual.PageFor("calc"));
}

TEST(ShippedManual, EveryLinkLeadsToAPageAndTheIndexLinksEveryPage) {
  const Manual manual(kSourceManual);
  const std::regex link(R"(\]\(([^)#\s]+)(#[^)]*)?\))");
  std::set<std::string> names;
  for (const ManualPage& page : manual.Pages()) names.insert(page.Name);
  std::set<std::string> from_index;
  for (const ManualPage& page : manual.Pages()) {
    const std::string text = *manual.Text(page.Name);
    const std::filesystem::path folder = std::filesystem::path(page.Name).parent_path();
    for (auto it = std::sregex_iterator(text.begin(), text.end(), link);
         it != std::sregex_iterator(); ++it) {
      const std::string target = (*it)[1];
      if (target.find("://") != std::string::npos) continue;
      std::filesystem::path to = (folder / target).lexically_normal();
      ASSERT_EQ(to.extension(), ".md") << page.Name << " links " << target;
      const std::string name = to.replace_extension().generic_string();
      EXPECT_TRUE(names.count(name)) << page.Name << " links " << target;
      if (page.Name == "index") from_index.insert(name);
    }
  }
  for (const std::string& name : names) {
    if (name != "index") {
      EXPECT_TRUE(from_index.count(name)) << "the index does not link " << name;
    }
  }
}

}  // namespace
}  // namespace ovelt
