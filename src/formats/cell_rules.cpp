#include "formats/cell_rules.h"

namespace ovelt {
namespace {

// Sets the rule of a character for both of its cases.
void SetBothCases(CellTable& table, char c, uint8_t code) {
  table.code[static_cast<unsigned char>(c)] = code;
  table.code[static_cast<unsigned char>(UpperCase(c))] = code;
  if (c >= 'A' && c <= 'Z') table.code[static_cast<unsigned char>(c - 'A' + 'a')] = code;
}

CellTable BaseTable() {
  CellTable table;  // every code starts as kCellRefuse
  for (char base : {'A', 'C', 'G', 'T'}) SetBothCases(table, base, static_cast<uint8_t>(base));
  SetBothCases(table, 'U', 'T');
  SetBothCases(table, 'N', '?');
  table.code[' '] = kCellSkip;
  table.code['\t'] = kCellSkip;
  return table;
}

void MarkPlainCopies(CellTable& table) {
  table.plain_copies = true;
  for (char c : {'A', 'C', 'G', 'T', '-', '?'}) {
    if (table.code[static_cast<unsigned char>(c)] != static_cast<uint8_t>(c)) {
      table.plain_copies = false;
    }
  }
}

}  // namespace

char UpperCase(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

bool IsAmbiguityCode(char upper) {
  switch (upper) {
    case 'M':
    case 'R':
    case 'W':
    case 'S':
    case 'Y':
    case 'K':
      return true;
    default:
      return false;
  }
}

CellTable MakeCellTable(std::string_view stop_chars) {
  CellTable table = BaseTable();
  table.code['-'] = '-';
  table.code['?'] = '?';
  table.code['.'] = kCellMatch;
  for (char c : stop_chars) table.code[static_cast<unsigned char>(c)] = kCellStop;
  MarkPlainCopies(table);
  return table;
}

CellTable MakeMegaCellTable(char match, char gap, char missing) {
  CellTable table = BaseTable();
  table.code['"'] = kCellQuote;
  table.code['!'] = kCellCommand;
  // The user's symbols come last, so that they win over any rule above.
  SetBothCases(table, missing, '?');
  SetBothCases(table, gap, '-');
  SetBothCases(table, match, kCellMatch);
  MarkPlainCopies(table);
  return table;
}

}  // namespace ovelt
