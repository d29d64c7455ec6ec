#include "analyses/divergence/common/site_change_code.h"

#include <algorithm>
#include <array>

#include "analyses/divergence/common/codon_index.h"
#include "analyses/divergence/common/codon_pair_classes.h"

namespace ovelt {

namespace {

using Codes = std::array<int16_t, 3>;

struct CodonPair {
  size_t First = 0, Second = 0;  // indices into the codons of the column
  CodonDifference Difference;
};

// The nucleotide variants of each position among the codons.
std::array<int, 3> VariantsOf(const std::vector<int>& codons) {
  std::array<int, 3> variants{};
  for (int p = 1; p <= 3; ++p) {
    std::array<bool, 5> seen{};
    for (const int codon : codons) seen[static_cast<size_t>(CodonBase(codon, p))] = true;
    variants[static_cast<size_t>(p - 1)] =
        static_cast<int>(std::count(seen.begin() + 1, seen.end(), true));
  }
  return variants;
}

// A complex codon: -9 where nothing varies; minus the variants of a varying position (-2 for
// one or two) where the column was small enough to count its pairs, -8 for the closing pass
// otherwise.
Codes Complex(const std::vector<int>& codons, const std::array<int, 3>& pair_count) {
  const std::array<int, 3> variants = VariantsOf(codons);
  Codes codes{};
  for (size_t p = 0; p < 3; ++p) {
    if (pair_count[p] == 0) {
      codes[p] = kCodeComplexInvariant;
    } else if (codons.size() > 4) {
      codes[p] = kCodeComplexUnresolved;
    } else {
      codes[p] = static_cast<int16_t>(-std::max(2, variants[p]));
    }
  }
  return codes;
}

// Two codes of one position changed by two pairs: the two digits, smaller first.
int16_t TwoDigits(int8_t a, int8_t b) {
  if (a == 0) return b;
  if (b == 0) return a;
  return static_cast<int16_t>(10 * std::min(a, b) + std::max(a, b));
}

Codes NetworkCodes(const ClassifiedPair& x, const ClassifiedPair& y) {
  Codes codes{};
  for (size_t p = 0; p < 3; ++p) codes[p] = TwoDigits(x.Value[p], y.Value[p]);
  return codes;
}

int SumOf(const Codes& codes) {
  return codes[0] + codes[1] + codes[2];
}

}  // namespace

int16_t ClosingCode(int16_t code, int variants) {
  if (code == kCodeUnclassified) return kCodeInvariant;
  if (code != kCodeComplexUnresolved) return code;
  if (variants == 0) return kCodeComplexInvariant;
  if (variants <= 2) return -2;
  return static_cast<int16_t>(-variants);
}

std::array<int16_t, 3> ClassifyDistinctCodons(const std::vector<int>& codons,
                                              const GeneticCodeTable& code,
                                              ClassificationRules& rules, bool& stop_found) {
  const size_t n = codons.size();
  std::vector<CodonPair> pairs;
  std::array<int, 3> pair_count{};
  for (size_t i = 0; i < n; ++i) {
    for (size_t j = i + 1; j < n; ++j) {
      const CodonDifference d = DifferenceOf(codons[i], codons[j]);
      pairs.push_back({i, j, d});
      for (size_t p = 0; p < 3; ++p) pair_count[p] += d.At[p] ? 1 : 0;
    }
  }
  const int varying = static_cast<int>(
      std::count_if(pair_count.begin(), pair_count.end(), [](int c) { return c > 0; }));
  auto classify = [&](const CodonPair& pair) {
    return ClassifyCodonPair(codons[pair.First], codons[pair.Second], code, rules, stop_found);
  };
  // The one varying position, for P = 1.
  auto single_position = [&pair_count]() -> size_t {
    for (size_t p = 0; p < 3; ++p)
      if (pair_count[p] > 0) return p;
    return 0;
  };

  Codes codes{};
  if (n == 2) {
    const CodonPair& pair = pairs.front();
    const int d = pair.Difference.Count;
    if (rules.PairedSpecies && d == 2) {
      for (size_t p = 0; p < 3; ++p) codes[p] = pair.Difference.At[p] ? 1 : 0;
    } else {
      const ClassifiedPair classified = classify(pair);
      for (size_t p = 0; p < 3; ++p) codes[p] = classified.Value[p];
    }
    if (d >= 2 && code.Translate(codons[0]) == code.Translate(codons[1])) {
      for (size_t p = 0; p < 3; ++p)
        if (pair.Difference.At[p]) codes[p] = 2;
    }
    return codes;
  }

  if (n == 3 && varying == 1) {
    const size_t p = single_position();
    int sum = 0;
    for (const CodonPair& pair : pairs) sum += classify(pair).Value[p];
    if (sum == 3) codes[p] = 11;
    if (sum == 4) codes[p] = 12;
    if (sum == 6) codes[p] = 22;
    if (codes[p] == 0) return Complex(codons, pair_count);
    return codes;
  }

  if (n == 3 && varying == 2) {
    const int m = static_cast<int>(std::count(pair_count.begin(), pair_count.end(), 2));
    if (m == 2) {
      // The pair that differs at both positions is left out; the other two change one each.
      for (const CodonPair& pair : pairs) {
        if (pair.Difference.Count != 1) continue;
        const ClassifiedPair classified = classify(pair);
        for (size_t p = 0; p < 3; ++p)
          if (pair.Difference.At[p]) codes[p] = classified.Value[p];
      }
      return codes;
    }
    if (m == 1) {
      // The pair that differs at one position, and the two others in pair order.
      size_t single = 0;
      std::vector<size_t> others;
      for (size_t k = 0; k < pairs.size(); ++k) {
        if (pairs[k].Difference.Count == 1) {
          single = k;
        } else {
          others.push_back(k);
        }
      }
      const ClassifiedPair s = classify(pairs[single]);
      const ClassifiedPair o1 = classify(pairs[others[0]]);
      const ClassifiedPair o2 = classify(pairs[others[1]]);
      const Codes first = NetworkCodes(s, o1);
      const Codes second = NetworkCodes(s, o2);
      const int sum1 = SumOf(first);
      const int sum2 = SumOf(second);
      const int gap = sum1 > sum2 ? sum1 - sum2 : sum2 - sum1;
      if (gap == 0 || gap == 9) {
        if (rules.PairedSpecies) return second;
        const int pick = rules.Ties != nullptr ? rules.Ties->Pick(2) : 1;
        return pick == 1 ? first : second;
      }
      return sum1 > sum2 ? first : second;
    }
    return Complex(codons, pair_count);
  }

  if (n == 4 && varying == 1) {
    const size_t p = single_position();
    int sum = 0;
    for (const CodonPair& pair : pairs) sum += classify(pair).Value[p];
    if (sum == 6) codes[p] = 111;
    if (sum == 7) codes[p] = 112;
    if (sum == 8 || sum == 9) codes[p] = 122;
    if (sum == 12) codes[p] = 222;
    if (codes[p] == 0) return Complex(codons, pair_count);
    return codes;
  }

  if (n == 4 && varying == 2 && code.NuclearCodeFlag == 1) {
    const int m = static_cast<int>(std::count(pair_count.begin(), pair_count.end(), 4));
    if (m != 2) return Complex(codons, pair_count);
    // A square: four one-step pairs around it, two diagonals.
    bool all_synonymous = true;
    for (const CodonPair& pair : pairs) {
      if (pair.Difference.Count != 1) continue;
      const ClassifiedPair classified = classify(pair);
      for (size_t p = 0; p < 3; ++p) {
        if (!pair.Difference.At[p]) continue;
        codes[p] = std::max<int16_t>(codes[p], classified.Value[p]);
        if (classified.Value[p] != 2) all_synonymous = false;
      }
    }
    std::vector<size_t> twos;
    for (size_t p = 0; p < 3; ++p)
      if (codes[p] == 2) twos.push_back(p);
    if (twos.size() == 2 && !all_synonymous) codes[twos.front()] = 1;
    return codes;
  }

  return Complex(codons, pair_count);
}

SiteChangeCodes ClassifyCodonColumns(const CodonColumns& columns,
                                     const std::vector<int16_t>& codon_position,
                                     const GeneticCodeTable& code, int32_t from, int32_t to,
                                     ClassificationRules& rules) {
  SiteChangeCodes result;
  result.Code.assign(static_cast<size_t>(columns.Matrix->sites()) + 1, kCodeUnclassified);
  std::array<bool, 65> seen{};
  std::vector<int> codons;
  for (const CodonSites& sites : CompleteCodons(codon_position, from, to)) {
    auto set_all = [&result, &sites](int16_t value) {
      for (const int32_t site : sites) result.Code[static_cast<size_t>(site)] = value;
    };
    if (columns.HasGap(sites)) {
      set_all(kCodeGapCodon);
      ++result.CodonsWithGaps;
      continue;
    }
    ++result.Codons;
    if (columns.Monomorphic(sites)) {
      set_all(kCodeInvariant);
      if (columns.Seqs >= 1 && code.IsStop(columns.CodonOf(sites, 1))) result.StopFound = true;
      continue;
    }
    seen.fill(false);
    for (int32_t seq = 1; seq <= columns.Seqs; ++seq)
      seen[static_cast<size_t>(columns.CodonOf(sites, seq))] = true;
    codons.clear();
    for (int c = 1; c <= kCodonCount; ++c)
      if (seen[static_cast<size_t>(c)]) codons.push_back(c);
    if (codons.size() < 2) {
      set_all(kCodeInvariant);
      continue;
    }
    const std::array<int16_t, 3> raw =
        ClassifyDistinctCodons(codons, code, rules, result.StopFound);
    const std::array<int, 3> variants = VariantsOf(codons);
    bool complex = false;
    for (size_t p = 0; p < 3; ++p) {
      if (raw[p] < 0) complex = true;
      if (raw[p] == kCodeComplexUnresolved && rules.SecondSelection) ++result.InternalFaults;
      result.Code[static_cast<size_t>(sites[p])] = ClosingCode(raw[p], variants[p]);
    }
    if (complex) ++result.ComplexCodons;
  }
  return result;
}

}  // namespace ovelt
