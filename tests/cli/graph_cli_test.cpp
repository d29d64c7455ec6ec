#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"
#include "ui/cli/graph_module_loader.h"

namespace ovelt {
namespace {

using testing::RunOvelt;
using testing::TempDir;

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";

#ifdef OVELT_GRAPH_MODULE

std::string Head(const std::string& path, size_t bytes) {
  std::ifstream in(path, std::ios::binary);
  std::string head(bytes, '\0');
  in.read(head.data(), static_cast<std::streamsize>(bytes));
  head.resize(static_cast<size_t>(in.gcount()));
  return head;
}

uint32_t LittleEndian32(const std::string& bytes, size_t at) {
  uint32_t v = 0;
  for (size_t i = 0; i < 4; ++i)
    v |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
  return v;
}

TEST(GraphCli, SlidingWindowGraphAsPng) {
  TempDir dir;
  const std::string png = (dir.Path() / "pi.png").string();
  const auto r = RunOvelt({"dna-polymorphism", kExample, "--sliding-window", "--graph", png},
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(Head(png, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_GT(std::filesystem::file_size(png), 1000u);
}

TEST(GraphCli, TajimaWindowsAsSvg) {
  TempDir dir;
  const std::string svg = (dir.Path() / "d.svg").string();
  const auto r =
      RunOvelt({"tajima", kExample, "--sliding-window", "--graph", svg}, dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string text = Head(svg, 1 << 20);
  EXPECT_NE(text.find("<svg"), std::string::npos);
  EXPECT_NE(text.find("</svg>"), std::string::npos);
  EXPECT_NE(text.find("Nucleotide Position"), std::string::npos);
}

TEST(GraphCli, MismatchAsBitmap) {
  TempDir dir;
  const std::string bmp = (dir.Path() / "mismatch.bmp").string();
  const auto r =
      RunOvelt({"population-size-changes", kExample, "--graph", bmp}, dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string bytes = Head(bmp, 1 << 22);
  ASSERT_GT(bytes.size(), 54u);
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  // The bitmap's own size field agrees with the file.
  EXPECT_EQ(LittleEndian32(bytes, 2), bytes.size());
}

TEST(GraphCli, FuLiWindowsKeepTheReportOnStandardOutput) {
  TempDir dir;
  const std::string png = (dir.Path() / "fl.png").string();
  const auto r =
      RunOvelt({"fu-li", kExample, "--sliding-window", "--graph", png}, dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("Input Data File:"), std::string::npos);
  EXPECT_EQ(Head(png, 4), "\x89PNG");
}

// Sets an environment variable for the time of one test, and puts back what was there.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::string& value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~ScopedVariable() {
    if (old_)
      ::setenv(name_, old_->c_str(), 1);
    else
      ::unsetenv(name_);
  }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(GraphCli, WithoutTheModuleNothingIsDrawnAndTheReportStillComesOut) {
  TempDir dir;
  TempDir empty;
  const ScopedVariable modules("OVELT_GRAPH_MODULE_DIR", empty.Path().string());
  const std::string png = (dir.Path() / "pi.png").string();
  const auto r = RunOvelt({"dna-polymorphism", kExample, "--sliding-window", "--graph", png},
                          dir.Path().string());
  EXPECT_NE(r.status, 0);
  const std::string looked = (empty.Path() / "ovelt-graph.so").string();
  EXPECT_NE(r.err.find("The graph module ovelt-graph.so was not found in: " + looked +
                       ".\nNothing was written on " + png),
            std::string::npos)
      << r.err;
  EXPECT_FALSE(std::filesystem::exists(png));
  EXPECT_NE(r.out.find("Input Data File:"), std::string::npos);
}

TEST(GraphCli, AModuleOfAnotherLayoutIsRefused) {
  TempDir dir;
  const ScopedVariable modules("OVELT_GRAPH_MODULE_DIR", OVELT_STALE_GRAPH_MODULE);
  const std::string svg = (dir.Path() / "d.svg").string();
  const auto r =
      RunOvelt({"tajima", kExample, "--sliding-window", "--graph", svg}, dir.Path().string());
  EXPECT_NE(r.status, 0);
  EXPECT_NE(r.err.find(std::string(OVELT_STALE_GRAPH_MODULE) +
                       "/ovelt-graph.so was made for another version of this program (layout " +
                       std::to_string(kGraphModuleLayout + 1) + ", this one needs " +
                       std::to_string(kGraphModuleLayout) +
                       ") and was not used.\nNothing was written on " + svg),
            std::string::npos)
      << r.err;
  // Its save entry writes the file when called: the file's absence shows it was never called.
  EXPECT_FALSE(std::filesystem::exists(svg));
  EXPECT_NE(r.out.find("Input Data File:"), std::string::npos);
}

TEST(GraphCli, TheModuleIsLookedForBesideTheProgramThenUnderLib) {
  const ScopedVariable modules("OVELT_GRAPH_MODULE_DIR", "");
  EXPECT_EQ(GraphModuleCandidates("/opt/ovelt/bin"),
            (std::vector<std::filesystem::path>{"/opt/ovelt/bin/ovelt-graph.so",
                                                "/opt/ovelt/lib/ovelt/ovelt-graph.so"}));
}

#endif

TEST(GraphCli, RunWithoutAChartSaysSoAndWritesNothing) {
  TempDir dir;
  const std::string png = (dir.Path() / "none.png").string();
  const auto r = RunOvelt({"tajima", kExample, "--graph", png}, dir.Path().string());
  EXPECT_NE(r.status, 0);
  EXPECT_NE(r.err.find("This run leaves no graph to draw."), std::string::npos) << r.err;
  EXPECT_FALSE(std::filesystem::exists(png));
  // The report itself still stands on standard output.
  EXPECT_NE(r.out.find("Input Data File:"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
