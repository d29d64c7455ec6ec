#include "analyses/divergence/common/pairwise_substitutions.h"

#include <array>
#include <cstdint>

#include "core/genetic_code.h"

namespace ovelt {

namespace {

// The sequences of one column grouped by their value (codon 1..64, or nucleotide rank 1..4):
// the values met in ascending order, and the members of each, ascending.
struct ColumnGroups {
  std::vector<int> Values;
  std::vector<size_t> Start;  // members of group g: Members[Start[g] .. Start[g + 1])
  std::vector<int32_t> Members;

  void Build(const std::vector<uint8_t>& value_of, int32_t seqs) {
    std::array<int32_t, 65> count{};
    for (int32_t seq = 1; seq <= seqs; ++seq) ++count[value_of[static_cast<size_t>(seq)]];
    Values.clear();
    Start.assign(1, 0);
    std::array<size_t, 65> slot{};
    for (size_t v = 0; v < count.size(); ++v) {
      if (count[v] == 0) continue;
      Values.push_back(static_cast<int>(v));
      slot[v] = Start.back();
      Start.push_back(Start.back() + static_cast<size_t>(count[v]));
    }
    Members.resize(static_cast<size_t>(seqs));
    for (int32_t seq = 1; seq <= seqs; ++seq)
      Members[slot[value_of[static_cast<size_t>(seq)]]++] = seq;
  }
};

// Adds `a` and `b` to every pair across groups g and h of the column.
void AddAcross(const ColumnGroups& groups, size_t g, size_t h, double a, double b, PairTable& first,
               PairTable* second) {
  for (size_t x = groups.Start[g]; x < groups.Start[g + 1]; ++x) {
    const int32_t i = groups.Members[x];
    for (size_t y = groups.Start[h]; y < groups.Start[h + 1]; ++y) {
      const int32_t j = groups.Members[y];
      const size_t index = i < j ? first.Index(i, j) : first.Index(j, i);
      AddToCell(first.Values()[index], a);
      if (second != nullptr) AddToCell(second->Values()[index], b);
    }
  }
}

}  // namespace

PairwiseSubstitutions CountPairwiseSubstitutions(const CodonColumns& columns,
                                                 const std::vector<CodonSites>& codons,
                                                 const NeiGojoboriTable& counts,
                                                 const Progress& progress) {
  PairwiseSubstitutions result{PairTable(columns.Seqs), PairTable(columns.Seqs)};
  std::vector<uint8_t> codon_of;
  ColumnGroups groups;
  size_t done = 0;
  for (const CodonSites& sites : codons) {
    if (++done % 256 == 0) progress.Raise(static_cast<int>(100 * done / codons.size()));
    if (columns.HasGap(sites) || columns.Monomorphic(sites)) continue;
    columns.CodonsOf(sites, codon_of);
    groups.Build(codon_of, columns.Seqs);
    for (size_t g = 0; g < groups.Values.size(); ++g) {
      for (size_t h = g + 1; h < groups.Values.size(); ++h) {
        const NeiGojoboriCount& c = counts.At(groups.Values[g], groups.Values[h]);
        AddAcross(groups, g, h, c.Synonymous, c.Nonsynonymous(), result.Synonymous,
                  &result.Nonsynonymous);
      }
    }
  }
  return result;
}

PairwiseSubstitutions CountPairwiseSubstitutionsPlain(const CodonColumns& columns,
                                                      const std::vector<CodonSites>& codons,
                                                      const GeneticCodeTable& code) {
  PairwiseSubstitutions result{PairTable(columns.Seqs), PairTable(columns.Seqs)};
  for (const CodonSites& sites : codons) {
    if (columns.HasGap(sites) || columns.Monomorphic(sites)) continue;
    for (int32_t i = 1; i < columns.Seqs; ++i) {
      for (int32_t j = i + 1; j <= columns.Seqs; ++j) {
        const int a = columns.CodonOf(sites, i);
        const int b = columns.CodonOf(sites, j);
        if (a == b) continue;
        const NeiGojoboriCount c = NeiGojoboriPair(a, b, code);
        AddToCell(result.Synonymous.At(i, j), c.Synonymous);
        AddToCell(result.Nonsynonymous.At(i, j), c.Nonsynonymous());
      }
    }
  }
  return result;
}

NoncodingDifferences CountNoncodingDifferences(const CodonColumns& columns,
                                               const std::vector<int16_t>& codon_position,
                                               int32_t from, int32_t to) {
  NoncodingDifferences result{0, PairTable(columns.Seqs)};
  std::vector<uint8_t> base_of(static_cast<size_t>(columns.Seqs) + 1, 0);
  ColumnGroups groups;
  for (int32_t site = from; site <= to; ++site) {
    const int16_t position = static_cast<size_t>(site) < codon_position.size()
                                 ? codon_position[static_cast<size_t>(site)]
                                 : int16_t{0};
    const int16_t site_class = columns.ClassAt(site);
    if (position != 0 || site_class == kGapOrMissing) continue;
    ++result.Positions;
    if (site_class == kMonomorphic) continue;
    for (int32_t seq = 1; seq <= columns.Seqs; ++seq)
      base_of[static_cast<size_t>(seq)] =
          static_cast<uint8_t>(NucleotideRank(columns.Matrix->sequence(seq)[site - 1]));
    groups.Build(base_of, columns.Seqs);
    for (size_t g = 0; g < groups.Values.size(); ++g)
      for (size_t h = g + 1; h < groups.Values.size(); ++h)
        AddAcross(groups, g, h, 1.0, 0.0, result.Differences, nullptr);
  }
  return result;
}

}  // namespace ovelt
