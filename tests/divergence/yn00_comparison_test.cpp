// Pairwise synonymous and nonsynonymous divergence compared with an independent program: yn00 of
// PAML (Yang 1997; Debian's paml package), whose first table is the Nei and Gojobori (1986)
// estimate with the Jukes and Cantor correction, dN and dS for each pair. The test is skipped,
// saying so, when yn00 is not on the PATH.
//
// The two programs count the synonymous sites of a codon differently once a single change can
// make a stop codon: here such a change leaves the denominator of its site only (and a second
// position counts no synonymous site), while yn00 leaves stop changes out of every site count and
// then scales the synonymous and nonsynonymous sites to three per codon. The random alignments of
// the comparison therefore use only codons with no stop codon one change away, where the two
// rules agree; the last test shows the difference on one pair, worked out by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "analyses/divergence/common/codon_fold_table.h"
#include "analyses/divergence/common/codon_index.h"
#include "analyses/divergence/common/pair_means.h"
#include "analyses/divergence/common/pairwise_substitutions.h"
#include "analyses/divergence/common/synonymous_sites.h"
#include "codon_fixture.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

std::optional<std::string> Yn00OnPath() {
  const char* path = std::getenv("PATH");
  if (path == nullptr) return std::nullopt;
  std::stringstream dirs(path);
  std::string dir;
  while (std::getline(dirs, dir, ':')) {
    const std::filesystem::path candidate = std::filesystem::path(dir) / "yn00";
    std::error_code ec;
    if (std::filesystem::is_regular_file(candidate, ec)) return candidate.string();
  }
  return std::nullopt;
}

// yn00's Nei-Gojobori table: (dN, dS) of each pair i > j, -1 where it does not apply.
struct Yn00Pair {
  double dN = 0.0, dS = 0.0;
};

std::vector<std::vector<Yn00Pair>> RunYn00(const std::string& yn00,
                                           const std::vector<std::string>& rows) {
  testing::TempDir dir;
  std::string phylip = "  " + std::to_string(rows.size()) + "  " +
                       std::to_string(rows.front().size()) + "\n";
  for (size_t i = 0; i < rows.size(); ++i) phylip += "s" + std::to_string(i + 1) + "\n" + rows[i] + "\n";
  dir.Write("seq.txt", phylip);
  dir.Write("yn00.ctl",
            "seqfile = seq.txt\noutfile = out.txt\nverbose = 0\nicode = 0\nweighting = 0\n"
            "commonf3x4 = 0\n");
  const std::string command =
      "cd '" + dir.Path().string() + "' && '" + yn00 + "' yn00.ctl > log.txt 2>&1";
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
  std::ifstream out(dir.File("out.txt"));
  std::string line;
  while (std::getline(out, line) && line.find("Nei & Gojobori 1986") == std::string::npos) {
  }
  std::vector<std::vector<Yn00Pair>> table(rows.size() + 1);
  const std::regex entry(R"(\(\s*(-?[0-9.]+)\s+(-?[0-9.]+)\))");
  size_t row = 0;
  while (std::getline(out, line) && row < rows.size()) {
    if (line.rfind("s", 0) != 0) continue;  // the rows begin with the names s1, s2, ...
    ++row;
    for (std::sregex_iterator it(line.begin(), line.end(), entry), end; it != end; ++it)
      table[row].push_back({std::stod((*it)[1]), std::stod((*it)[2])});
  }
  EXPECT_EQ(row, rows.size());
  return table;
}

// Codons that are no stop and have no stop codon one change away (standard code).
std::vector<std::string> StopFreeCodons() {
  const GeneticCodeTable code = BuildGeneticCode(1);
  const std::string bases = "TCAG";
  std::vector<std::string> codons;
  for (char a : bases)
    for (char b : bases)
      for (char c : bases) {
        const std::string codon{a, b, c};
        const int index = CodonIndex(a, b, c);
        bool near_stop = code.IsStop(index);
        for (int p = 1; p <= 3; ++p)
          for (int base = 1; base <= 4; ++base)
            near_stop = near_stop || code.IsStop(WithBase(index, p, base));
        if (!near_stop) codons.push_back(codon);
      }
  return codons;
}

struct OurPair {
  std::optional<double> Ks, Ka;
};

// Ks and Ka of each pair i < j as the per-pair table gives them.
std::vector<std::vector<OurPair>> Ours(const std::vector<std::string>& rows) {
  const auto sel = test::CodingSelection(rows);
  const ActiveData& ad = sel.data();
  const auto codons = CompleteCodons(ad.CodonPosition, 1, ad.NumSites);
  const SynonymousSiteCount sites = CountSynonymousSites(
      FirstColumns(sel), codons, ad.GeneticCode, BuildCodonFoldTable(ad.GeneticCode));
  const PairwiseSubstitutions d =
      CountPairwiseSubstitutions(FirstColumns(sel), codons, NeiGojoboriTable(ad.GeneticCode));
  std::vector<std::vector<OurPair>> ours(rows.size() + 1,
                                         std::vector<OurPair>(rows.size() + 1));
  for (int32_t i = 1; i < static_cast<int32_t>(rows.size()); ++i)
    for (int32_t j = i + 1; j <= static_cast<int32_t>(rows.size()); ++j) {
      const float s = (sites.SynSites[static_cast<size_t>(i)] + sites.SynSites[static_cast<size_t>(j)]) / 2.0F;
      const float n = static_cast<float>(sites.CodingSitesAnalyzed) - s;
      OurPair& pair = ours[static_cast<size_t>(i)][static_cast<size_t>(j)];
      if (s > 0.0F) pair.Ks = JukesCantorOf(d.Synonymous.At(i, j) / s);
      if (n > 0.0F) pair.Ka = JukesCantorOf(d.Nonsynonymous.At(i, j) / n);
    }
  return ours;
}

void ExpectSame(const std::optional<double>& ours, double yn00, const std::string& what) {
  if (yn00 < 0.0) {
    EXPECT_FALSE(ours.has_value()) << what << ": yn00 says it does not apply";
    return;
  }
  ASSERT_TRUE(ours.has_value()) << what << ": yn00 gives " << yn00;
  // yn00 prints four decimals.
  EXPECT_NEAR(*ours, yn00, 6e-5) << what;
}

TEST(Yn00Comparison, NeiGojoboriDivergenceOnRandomAlignments) {
  const auto yn00 = Yn00OnPath();
  if (!yn00) GTEST_SKIP() << "yn00 (Debian package paml) is not on the PATH: comparison skipped";
  const std::vector<std::string> pool = StopFreeCodons();
  ASSERT_GT(pool.size(), 20u);
  std::mt19937 rng(1986);
  for (int trial = 0; trial < 4; ++trial) {
    const size_t seqs = 4 + static_cast<size_t>(trial);
    const size_t codons = 60;
    std::vector<std::string> rows(seqs);
    for (size_t c = 0; c < codons; ++c) {
      const std::string ancestor = pool[rng() % pool.size()];
      for (auto& row : rows) row += rng() % 4 == 0 ? pool[rng() % pool.size()] : ancestor;
    }
    const auto theirs = RunYn00(*yn00, rows);
    const auto ours = Ours(rows);
    for (size_t i = 2; i <= seqs; ++i) {
      ASSERT_EQ(theirs[i].size(), i - 1) << "row " << i << " of yn00's table";
      for (size_t j = 1; j < i; ++j) {
        const std::string what = "trial " + std::to_string(trial) + " pair " +
                                 std::to_string(j) + "-" + std::to_string(i);
        ExpectSame(ours[j][i].Ks, theirs[i][j - 1].dS, what + " dS");
        ExpectSame(ours[j][i].Ka, theirs[i][j - 1].dN, what + " dN");
      }
    }
  }
}

TEST(Yn00Comparison, StopChangesAreCountedDifferentlyOnPurpose) {
  const auto yn00 = Yn00OnPath();
  if (!yn00) GTEST_SKIP() << "yn00 (Debian package paml) is not on the PATH: comparison skipped";
  // TGT CTT AAA and TGC CTT AAA: one synonymous difference.
  // Here: TGT's third position has 1 stop (TGA) and 1 synonym (TGC): 1/2; CTT's third 1; AAA's
  //   third 1/3 (AAG), its first 0 (TAA a stop, CAA, GAA): S = 11/6, p = 6/11.
  // yn00: stop changes leave every count, then S + N is scaled to 9: S = 5/3, N = 20/3 before
  //   scaling (TGT 1/3 and 7/3, CTT 1 and 2, AAA 1/3 and 7/3), times 27/25: S = 9/5, p = 5/9.
  const std::vector<std::string> rows{"TGTCTTAAA", "TGCCTTAAA"};
  const auto theirs = RunYn00(*yn00, rows);
  const auto ours = Ours(rows);
  ASSERT_TRUE(ours[1][2].Ks.has_value());
  EXPECT_NEAR(*ours[1][2].Ks, *JukesCantorOf(6.0 / 11.0), 1e-6);
  ASSERT_EQ(theirs[2].size(), 1u);
  EXPECT_NEAR(theirs[2][0].dS, *JukesCantorOf(5.0 / 9.0), 6e-5);
}

}  // namespace
}  // namespace ovelt
