// The cell rules and the walk of a line through them.

#include <gtest/gtest.h>

#include <string>

#include "formats/cell_rules.h"
#include "formats/sequence_cells.h"

namespace ovelt {
namespace {

std::string Stored(const SequenceCells& cells) { return std::string(cells.data(), cells.count()); }

TEST(CellRules, EveryByteHasItsRule) {
  const CellTable table = MakeCellTable(">");
  for (int b = 0; b < 256; ++b) {
    const char c = static_cast<char>(b);
    const uint8_t code = table.of(c);
    switch (UpperCase(c)) {
      case 'A': case 'C': case 'G': case 'T':
        EXPECT_EQ(code, static_cast<uint8_t>(UpperCase(c)));
        break;
      case 'U':
        EXPECT_EQ(code, 'T');
        break;
      case 'N': case '?':
        EXPECT_EQ(code, '?');
        break;
      case '-':
        EXPECT_EQ(code, '-');
        break;
      case '.':
        EXPECT_EQ(code, kCellMatch);
        break;
      case ' ': case '\t':
        EXPECT_EQ(code, kCellSkip);
        break;
      case '>':
        EXPECT_EQ(code, kCellStop);
        break;
      default:
        EXPECT_EQ(code, kCellRefuse) << "byte " << b;
    }
  }
}

TEST(CellRules, AmbiguityCodes) {
  for (char c : std::string("MRWSYK")) EXPECT_TRUE(IsAmbiguityCode(c));
  for (char c : std::string("ABCDGHNTUVX")) EXPECT_FALSE(IsAmbiguityCode(c));
}

TEST(CellRules, MegaSymbolsReplaceTheDefaults) {
  const CellTable table = MakeMegaCellTable('i', '~', '*');
  EXPECT_EQ(table.of('i'), kCellMatch);
  EXPECT_EQ(table.of('I'), kCellMatch);
  EXPECT_EQ(table.of('~'), '-');
  EXPECT_EQ(table.of('*'), '?');
  EXPECT_EQ(table.of('n'), '?');
  EXPECT_EQ(table.of('.'), kCellRefuse);
  EXPECT_EQ(table.of('-'), kCellRefuse);
  EXPECT_EQ(table.of('"'), kCellQuote);
  EXPECT_EQ(table.of('!'), kCellCommand);
}

TEST(CellWalk, StoresSkipsAndCopies) {
  const CellTable table = MakeCellTable();
  SequenceCells first;
  first.Start();
  WalkState state;
  WalkResult walk = WalkCells(table, "ac gu\tn?-", first, {}, state);
  EXPECT_EQ(walk.end, WalkEnd::kLineEnd);
  EXPECT_EQ(Stored(first), "ACGT?" "?-");

  SequenceCells second;
  second.Start(7);
  walk = WalkCells(table, "..A....", second, {MatchRule::kCopy, first.data()}, state);
  EXPECT_EQ(walk.end, WalkEnd::kLineEnd);
  EXPECT_EQ(Stored(second), "ACAT?" "?-");
}

TEST(CellWalk, StopsOnFaults) {
  const CellTable table = MakeCellTable("*");
  SequenceCells cells;
  WalkState state;
  cells.Start();
  WalkResult walk = WalkCells(table, "AC.G", cells, {}, state);
  EXPECT_EQ(walk.end, WalkEnd::kDotInFirst);
  EXPECT_EQ(walk.pos, 2u);
  cells.Start();
  walk = WalkCells(table, "ACxG", cells, {}, state);
  EXPECT_EQ(walk.end, WalkEnd::kRefused);
  EXPECT_EQ(walk.ch, 'X');
  cells.Start(3);
  walk = WalkCells(table, "ACG T", cells, {}, state);
  EXPECT_EQ(walk.end, WalkEnd::kFull);
  EXPECT_EQ(walk.pos, 4u);
  EXPECT_EQ(cells.count(), 3u);
  cells.Start();
  walk = WalkCells(table, "AC*GG", cells, {}, state);
  EXPECT_EQ(walk.end, WalkEnd::kStop);
  EXPECT_EQ(walk.pos, 2u);
  EXPECT_EQ(Stored(cells), "AC");
}

TEST(CellWalk, CommentsCarryOverLines) {
  const CellTable table = MakeMegaCellTable('.', '-', '?');
  SequenceCells cells;
  cells.Start();
  WalkState state;
  EXPECT_EQ(WalkCells(table, "AC\"open", cells, {}, state).end, WalkEnd::kLineEnd);
  EXPECT_TRUE(state.in_quote);
  EXPECT_EQ(WalkCells(table, "still ! inside", cells, {}, state).end, WalkEnd::kLineEnd);
  EXPECT_EQ(WalkCells(table, "closed\"G !cmd", cells, {}, state).end, WalkEnd::kLineEnd);
  EXPECT_TRUE(state.in_command);
  EXPECT_EQ(WalkCells(table, "more \"; T", cells, {}, state).end, WalkEnd::kLineEnd);
  EXPECT_FALSE(state.open());
  EXPECT_EQ(Stored(cells), "ACGT");
}

TEST(CellWalk, DeferredMatchIsMarked) {
  const CellTable table = MakeCellTable();
  SequenceCells cells;
  cells.Start();
  WalkState state;
  (void)WalkCells(table, "A.", cells, {MatchRule::kDefer, nullptr}, state);
  EXPECT_EQ(Stored(cells), std::string("A") + kDeferredMatchCell);
}

}  // namespace
}  // namespace ovelt
