// Files read where the system maps them: large files with their pages given back behind the
// reading, NEXUS files read as their own text, against the same bytes read from memory.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "formats/cell_rules.h"
#include "formats/read_file.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

// A random interleaved NEXUS matrix in blocks of 60 (some later blocks with the matching
// symbol, a comment and a name written otherwise), with `eol` as line end.
std::string RandomNexus(std::mt19937& rng, int ntax, int nchar, const std::string& eol) {
  static const std::string kCells = "ACGTACGTacgt-?N";
  std::vector<std::string> rows(static_cast<size_t>(ntax));
  for (auto& row : rows) {
    for (int s = 0; s < nchar; ++s) row += kCells[rng() % kCells.size()];
  }
  std::string text = "#NEXUS" + eol + "BEGIN DATA;" + eol +
                     "DIMENSIONS NTAX=" + std::to_string(ntax) + " NCHAR=" + std::to_string(nchar) +
                     ";" + eol + "FORMAT DATATYPE=DNA MISSING=? GAP=- MATCHCHAR=. INTERLEAVE;" +
                     eol + "MATRIX" + eol;
  for (int from = 0; from < nchar; from += 60) {
    for (int t = 0; t < ntax; ++t) {
      std::string piece = rows[static_cast<size_t>(t)].substr(static_cast<size_t>(from), 60);
      if (t > 0 && rng() % 3 == 0) {
        // Cells equal to the first row's written as the matching symbol.
        const std::string& first = rows[0];
        for (size_t k = 0; k < piece.size(); ++k) {
          if (UpperCase(piece[k]) == UpperCase(first[static_cast<size_t>(from) + k]) &&
              piece[k] != 'N' && piece[k] != 'n')
            piece[k] = '.';
        }
      }
      const std::string name =
          t == 1 && rng() % 2 == 0 ? "'seq_2'" : "seq_" + std::to_string(t + 1);
      text += name + "  " + piece + (rng() % 5 == 0 ? " [note]" : "") + eol;
    }
    text += eol;
  }
  return text + ";" + eol + "END;" + eol;
}

class MappedRead : public ::testing::Test {
 protected:
  testing::TempDir dir_;
  testing::ScriptedPlatform platform_;
};

void ExpectSameFile(const LoadedFile& a, const LoadedFile& b) {
  ASSERT_EQ(a.NumSeqs(), b.NumSeqs());
  ASSERT_EQ(a.NumSites, b.NumSites);
  EXPECT_EQ(a.Names, b.Names);
  for (int32_t q = 1; q <= a.NumSeqs(); ++q) {
    ASSERT_EQ(std::string(a.Matrix.sequence(q), static_cast<size_t>(a.NumSites)),
              std::string(b.Matrix.sequence(q), static_cast<size_t>(b.NumSites)))
        << "sequence " << q;
  }
}

TEST_F(MappedRead, NexusFromDiskEqualsTheSameBytesFromMemoryWithEitherLineEnd) {
  std::mt19937 rng(21);
  for (const std::string eol : {"\n", "\r\n"}) {
    // Over 2 MB of matrix, so that its pages are given back while it is read.
    const std::string text = RandomNexus(rng, 40, 80000, eol);
    ASSERT_GT(text.size(), size_t{3} << 20);
    const LoadedFile disk = ReadDataFile(dir_.Write("m.nex", text), platform_);
    const LoadedFile memory = ReadDataBuffer(text, "m.nex");
    ExpectSameFile(disk, memory);
    EXPECT_EQ(disk.Nexus->Format.Interleaved, 1);
  }
}

TEST_F(MappedRead, LargeFastaFromDiskEqualsTheSameBytesFromMemory) {
  std::mt19937 rng(22);
  std::string text;
  for (int q = 1; q <= 30; ++q) {
    text += ">s" + std::to_string(q) + "\n";
    for (int s = 0; s < 200000; ++s) {
      text += "ACGT-?acgN."[q == 1 ? rng() % 10 : rng() % 11];
      if (s % 70 == 69) text += "\n";
    }
    text += "\n";
  }
  ASSERT_GT(text.size(), size_t{5} << 20);
  const LoadedFile disk = ReadDataFile(dir_.Write("big.fas", text), platform_);
  const LoadedFile memory = ReadDataBuffer(text, "big.fas");
  ExpectSameFile(disk, memory);
}

}  // namespace
}  // namespace ovelt
