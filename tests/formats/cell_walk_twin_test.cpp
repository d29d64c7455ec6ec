// The cell walk (long runs of plain cells copied sixteen bytes at a time, then eight at a time
// through the table) against a walk of one character at a time by the rules of the table, on
// random lines that mix plain cells with every kind of character: lower case, U and N, blanks,
// matching symbols, stop characters, refused letters and MEGA comments.

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "formats/cell_rules.h"
#include "formats/sequence_cells.h"

namespace ovelt {
namespace {

struct Walked {
  WalkResult result;
  std::string cells;
  WalkState state;
};

// One character at a time, straight from the table's codes.
Walked PlainWalk(const CellTable& table, std::string_view text, size_t limit,
                 const MatchRule& match, WalkState state) {
  Walked out;
  auto done = [&](WalkEnd end, size_t pos, char ch) {
    out.result = {end, pos, ch};
    out.state = state;
    return out;
  };
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (state.in_quote) {
      state.in_quote = c != '"';
      continue;
    }
    if (state.in_command) {
      state.in_command = c != ';';
      continue;
    }
    const uint8_t code = table.of(c);
    if (code >= kFirstStoredCell || code == kCellMatch) {
      if (out.cells.size() == limit) return done(WalkEnd::kFull, i, c);
      if (code >= kFirstStoredCell) {
        out.cells += static_cast<char>(code);
      } else if (match.mode == MatchRule::kCopy) {
        out.cells += match.first[out.cells.size()];
      } else if (match.mode == MatchRule::kDefer) {
        out.cells += kDeferredMatchCell;
      } else {
        return done(WalkEnd::kDotInFirst, i, c);
      }
    } else if (code == kCellStop) {
      return done(WalkEnd::kStop, i, c);
    } else if (code == kCellQuote) {
      state.in_quote = true;
    } else if (code == kCellCommand) {
      state.in_command = true;
    } else if (code != kCellSkip) {
      return done(WalkEnd::kRefused, i, UpperCase(c));
    }
  }
  return done(WalkEnd::kLineEnd, text.size(), 0);
}

// A line of mostly plain cells with the odd other character, in runs of random length.
std::string RandomLine(std::mt19937& rng, const std::string& odd) {
  static const std::string kPlain = "ACGT-?";
  std::uniform_int_distribution<int> length(0, 120), pick(0, 99);
  std::string line;
  const int n = length(rng);
  for (int k = 0; k < n; ++k) {
    const int p = pick(rng);
    line += p < 96 ? kPlain[static_cast<size_t>(p) % kPlain.size()]
                   : odd[static_cast<size_t>(p) % odd.size()];
  }
  return line;
}

void ExpectSameWalks(const CellTable& table, const std::string& odd, uint32_t seed) {
  std::mt19937 rng(seed);
  const std::string first(4096, 'G');
  for (int trial = 0; trial < 4000; ++trial) {
    const std::string line = RandomLine(rng, odd);
    const size_t limit = trial % 3 == 0 ? static_cast<size_t>(rng() % 100) : 4096;
    const MatchRule match = trial % 2 == 0 ? MatchRule{MatchRule::kCopy, first.data()}
                                           : MatchRule{MatchRule::kDefer, nullptr};
    WalkState state;
    state.in_quote = trial % 7 == 0 && odd.find('"') != std::string::npos;
    const Walked expected = PlainWalk(table, line, limit, match, state);
    SequenceCells cells;
    cells.Start(limit);
    const WalkResult got = WalkCells(table, line, cells, match, state);
    ASSERT_EQ(got.end, expected.result.end) << line;
    ASSERT_EQ(got.pos, expected.result.pos) << line;
    ASSERT_EQ(got.ch, expected.result.ch) << line;
    ASSERT_EQ(std::string(cells.data(), cells.count()), expected.cells) << line;
    ASSERT_EQ(state.in_quote, expected.state.in_quote) << line;
    ASSERT_EQ(state.in_command, expected.state.in_command) << line;
  }
}

TEST(CellWalkTwin, FastaRulesOnRandomLines) {
  ExpectSameWalks(MakeCellTable(">"), "acgtuUnN \t.>xX*", 1);
}

TEST(CellWalkTwin, PlainRulesWithoutStops) {
  ExpectSameWalks(MakeCellTable(), "acgt .n", 2);
}

TEST(CellWalkTwin, MegaRulesWithComments) {
  ExpectSameWalks(MakeMegaCellTable('.', '-', '?'), "\"\"!;acg .", 3);
}

TEST(CellWalkTwin, MegaRulesWithOtherSymbolsCopyNoRawGap) {
  // With "~" as the gap symbol, "-" is no cell: the runs of plain cells must not take it.
  const CellTable table = MakeMegaCellTable(':', '~', '*');
  EXPECT_FALSE(table.plain_copies);
  ExpectSameWalks(table, "~*:acg", 4);
}

}  // namespace
}  // namespace ovelt
