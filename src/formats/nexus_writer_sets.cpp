// The SETS block: sequence sets as TaxSets, in the numbering of the written file, and domains
// as CharSets.

#include <algorithm>

#include "formats/nexus_writer_blocks.h"

namespace ovelt {
namespace {

// For each file sequence, its number among the included ones (0 when excluded).
std::vector<int32_t> WrittenNumbers(const ActiveData& ad) {
  std::vector<int32_t> written(static_cast<size_t>(ad.TotalSeqs) + 1, 0);
  int32_t next = 0;
  for (int32_t f = 1; f <= ad.TotalSeqs; ++f) {
    if (static_cast<size_t>(f) < ad.SeqIncluded.size() && ad.SeqIncluded[static_cast<size_t>(f)])
      written[static_cast<size_t>(f)] = ++next;
  }
  return written;
}

std::vector<int32_t> WrittenMembers(const PoblacionSecuencias& set,
                                    const std::vector<int32_t>& written) {
  std::vector<int32_t> members;
  for (double m : set.members()) {
    const auto f = static_cast<int64_t>(m);
    if (f >= 1 && f < static_cast<int64_t>(written.size()) && written[static_cast<size_t>(f)] > 0)
      members.push_back(written[static_cast<size_t>(f)]);
  }
  return members;
}

std::vector<std::string> SetLines(const ActiveData& ad) {
  std::vector<std::string> lines;
  const std::vector<int32_t> written = WrittenNumbers(ad);
  for (int32_t s = 1; s <= ad.SetCount(); ++s) {
    const PoblacionSecuencias& set = ad.SequenceSets[static_cast<size_t>(s)];
    const std::vector<int32_t> members = WrittenMembers(set, written);
    // A set of excluded sequences only would name no sequence of the written file.
    if (members.empty()) continue;
    lines.push_back("   TaxSet " + set.nombre() + " = " + NumberRuns(members) + ";");
  }
  for (const DomainSet& domain : ad.Domains) {
    if (domain.Sites.empty()) continue;
    lines.push_back("   CharSet " + domain.Name + " = " + NumberRuns(domain.Sites) + ";");
  }
  return lines;
}

}  // namespace

std::string NumberRuns(std::vector<int32_t> numbers) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  std::string text;
  for (size_t i = 0; i < numbers.size();) {
    size_t j = i;
    while (j + 1 < numbers.size() && numbers[j + 1] == numbers[j] + 1) ++j;
    if (!text.empty()) text += ' ';
    text += std::to_string(numbers[i]);
    if (j > i) text += "-" + std::to_string(numbers[j]);
    i = j + 1;
  }
  return text;
}

bool HasNexusSets(const ActiveData& ad) { return !SetLines(ad).empty(); }

void WriteNexusSetsBlock(const ActiveData& ad, WriterLines& out, const KeptStatements& kept) {
  const std::vector<std::string> lines = SetLines(ad);
  if (lines.empty() && kept.Head.empty() && kept.Body.empty()) return;
  out.Line("BEGIN SETS;");
  WriteKeptStatements(kept.Head, out);
  for (const std::string& line : lines) out.Line(line);
  WriteKeptStatements(kept.Body, out);
  out.Line("END;");
}

}  // namespace ovelt
