#include "formats/ovp_writer.h"

#include "core/genetic_code.h"
#include "core/text_case.h"
#include "files/whole_file.h"

namespace ovelt {

namespace {

constexpr int kCodonsPerLine = 8;
constexpr const char* kIndent = "        ";

std::string CodonText(int index) {
  static const char kLetters[] = {'T', 'C', 'A', 'G'};
  const int i = index - 1;
  return {kLetters[i / 16], kLetters[(i / 4) % 4], kLetters[i % 4]};
}

struct WrittenClass {
  int status;
  const char* head;
};

constexpr WrittenClass kClasses[] = {
    {kPreferred1, "PREF*:"}, {kPreferred2, "PREF**:"}, {kUnknownPreference, "UNKNOWN:"}};

}  // namespace

std::vector<std::string> PrefTableLines(const CodPrefUnPref& table) {
  std::vector<std::string> lines;
  lines.push_back("    PREFUNPREFCODONS GENETICCODE=" + GeneticCodeNexusName(table.GC()) + " " +
                  table.name() + " = ");
  for (const WrittenClass& written : kClasses) {
    std::vector<std::string> codons;
    for (int i = 1; i <= 64; ++i) {
      if (table.prefUnPref(i) == written.status) codons.push_back(CodonText(i));
    }
    if (codons.empty()) continue;
    if (lines.size() > 1) lines.back() += ",";
    lines.push_back(std::string(kIndent) + written.head);
    for (size_t first = 0; first < codons.size(); first += kCodonsPerLine) {
      std::string line = kIndent;
      for (size_t i = first; i < codons.size() && i < first + kCodonsPerLine; ++i) {
        if (i > first) line += " ";
        line += codons[i];
      }
      lines.push_back(line);
    }
  }
  if (lines.size() == 1) {
    lines.push_back(std::string(kIndent) + ";");  // nothing the writer has a head for
  } else {
    lines.back() += ";";
  }
  return lines;
}

std::vector<std::string> CodonUsageBlockLines(const GCPrefUnPref& store,
                                              const std::string& in_use) {
  std::vector<std::string> lines;
  for (const CodPrefUnPref& table : store.tables()) {
    const bool wanted =
        !store.reservedTable(table.name()) || ToUpperAscii(table.name()) == ToUpperAscii(in_use);
    if (!wanted || !table.HasInformation()) continue;
    if (table.GC() < 1 || table.GC() > kGeneticCodeCount) continue;
    if (lines.empty()) lines.push_back("BEGIN CODONUSAGE;");
    for (std::string& line : PrefTableLines(table)) lines.push_back(std::move(line));
  }
  if (!lines.empty()) lines.push_back("END;");
  return lines;
}

bool WriteOvpFile(const std::string& path, const CodPrefUnPref& table) {
  std::string text = "BEGIN CODONUSAGE;\r\n";
  for (const std::string& line : PrefTableLines(table)) text += line + "\r\n";
  text += "END;\r\n";
  return WriteWholeFile(path, text);
}

}  // namespace ovelt
