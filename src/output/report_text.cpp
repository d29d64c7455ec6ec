#include "output/report_text.h"

#include <array>

#include "output/format_mask.h"

namespace ovelt {
namespace {

constexpr size_t kBannerGap = 24;
constexpr size_t kSeparatorHalf = 38;
constexpr size_t kGeneFlowRule = 87;
constexpr const char* kPopulationNameMask = "!@@@@@@@@@@@@@@@@@";
constexpr const char* kFirstValueMask = "@@@@@@@@";
constexpr const char* kValueMask = "@@@@@@@@@";

std::string JoinCells(const std::vector<std::string>& cells, const std::string& separator) {
  std::string line;
  for (size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) line += separator;
    line += cells[i];
  }
  return line;
}

std::string RowsAsLines(const OutputGrid& grid, const std::string& separator) {
  std::string text;
  for (const auto& row : grid.Rows) text += JoinCells(row, separator) + kCrLf;
  return text;
}

std::string RuleAndHead(const ResultLabels& labels, const std::string& head) {
  const std::string rule(labels.GridRuleLength, '-');
  std::string text = std::string(kCrLf) + rule + kCrLf + kCrLf;
  if (!head.empty()) text += head + kCrLf;
  return text + rule + kCrLf;
}

std::string RuledTable(const ResultLabels& labels, const std::string& head,
                       const OutputGrid& grid) {
  return RuleAndHead(labels, head) + RowsAsLines(grid, labels.GridCellSeparator);
}

}  // namespace

std::string DateText(const Platform::DateTime& when) {
  return Format(when, "dd - mmmm - yyyy");
}

std::string TimeText(const Platform::DateTime& when) {
  return Format(when, "hh:mm:ss");
}

std::string CommonOpening(const Platform::DateTime& when) {
  const std::string banner = std::string(kProgramBanner) + std::string(kBannerGap, ' ') +
                             DateText(when) + "  " + TimeText(when);
  const std::string underline = std::string(" ").append(banner.size() - 1, '=');
  return banner + kCrLf + underline + kCrLf + kCrLf + kCrLf;
}

std::string TitleBlock(const std::string& title, const std::string& body) {
  const std::string title_line = title + " ";
  std::string text = title_line + kCrLf + " " + std::string(title_line.size() - 1, '-') + kCrLf;
  if (!body.empty()) text += body + kCrLf;
  return text;
}

std::string GridAsText(const ResultLabels& labels, const std::string& head,
                       const OutputGrid& grid) {
  return RuledTable(labels, head, grid);
}

void StreamGridAsText(std::ostream& out, const ResultLabels& labels, const std::string& head,
                      int64_t rows,
                      const std::function<std::vector<std::string>(int64_t)>& row) {
  out << RuleAndHead(labels, head);
  for (int64_t r = 0; r < rows && out; ++r)
    out << JoinCells(row(r), labels.GridCellSeparator) << kCrLf;
}

void StreamTableFile(std::ostream& out, const std::string& head, int64_t rows,
                     const std::function<std::vector<std::string>(int64_t)>& row) {
  out << head;
  for (int64_t r = 0; r < rows && out; ++r) {
    for (const std::string& cell : row(r)) out << cell;
    out << kCrLf;
  }
}

std::string SecondTableAsText(const ResultLabels& labels, const OutputGrid& grid) {
  return RuledTable(labels, JoinCells(grid.ColumnTitles, labels.GridCellSeparator), grid);
}

std::string GeneFlowHead(bool with_sequence_measures) {
  // Each column title with the blanks in front of it, so that the short head drops whole columns.
  struct Column {
    const char* Text;
    bool OnSequences;
  };
  static constexpr std::array<Column, 12> kColumns = {{
      {" Population 1", false},
      {"      Population 2", false},
      {"          Hs", false},
      {"        Ks", false},
      {"        Kxy", false},
      {"       Gst", false},
      {"     DeltaSt", true},
      {"   GammaSt", false},
      {"     Nst", true},
      {"       Fst", false},
      {"       Dxy", true},
      {"       Da", true},
  }};
  std::string head;
  for (const auto& column : kColumns) {
    if (with_sequence_measures || !column.OnSequences) head += column.Text;
  }
  return head;
}

std::string GeneFlowAsText(const GeneFlowTable& table) {
  if (table.Rows.empty()) return "";
  std::string text =
      std::string(kGeneFlowRule, '-') + kCrLf + GeneFlowHead(table.WithSequenceMeasures) + kCrLf;
  for (const auto& row : table.Rows) {
    std::string line = " ";
    line += Format(row.Population1, kPopulationNameMask);
    line += ' ';
    line += Format(row.Population2, kPopulationNameMask);
    for (size_t i = 0; i < row.Values.size(); ++i) {
      if (i > 0) line += ' ';
      line += Format(row.Values[i], i == 0 ? kFirstValueMask : kValueMask);
    }
    text += line + kCrLf;
  }
  return text;
}

std::string SessionSeparator() {
  return std::string(kSeparatorHalf, '<') + std::string(kSeparatorHalf, '>') + kCrLf + kCrLf;
}

std::string SessionEndLine(const Platform::DateTime& when) {
  return std::string(" Ovelt Session Terminated on  ") + DateText(when) + "  " + TimeText(when) +
         kCrLf;
}

}  // namespace ovelt
