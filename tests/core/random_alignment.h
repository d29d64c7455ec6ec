#pragma once
// Random alignments for identity tests, from a fixed seed so that every run sees the same data.

#include <random>
#include <string>
#include <vector>

namespace ovelt::test {

// `seqs` rows of `sites` cells drawn from `alphabet`. Few letters per site keep the sites
// varied: most sites draw from a random pair of letters so that singleton and informative
// sites both occur often.
inline std::vector<std::string> RandomRows(std::mt19937& rng, int seqs, int sites,
                                           const std::string& alphabet) {
  std::vector<std::string> rows(static_cast<size_t>(seqs),
                                std::string(static_cast<size_t>(sites), 'A'));
  std::uniform_int_distribution<size_t> pick(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> kind(0, 3);
  for (int site = 0; site < sites; ++site) {
    const bool narrow = kind(rng) != 0;
    const char a = alphabet[pick(rng)], b = alphabet[pick(rng)];
    for (auto& row : rows) {
      row[static_cast<size_t>(site)] = narrow ? (kind(rng) == 0 ? b : a) : alphabet[pick(rng)];
    }
  }
  return rows;
}

}  // namespace ovelt::test
