#pragma once
// The site frequency spectrum: how many mutations are found in i of the n sequences.
// Without an outgroup the ancestral state is unknown, so the spectrum is folded: a variant in
// i sequences and one in n - i sequences count alike, i = 1..n / 2.
//
// Expected unfolded spectrum, t coalescent units after theta changed from theta0 to theta1
// (Griffiths and Tavaré 1998; Polanski and Kimmel 2003): a branch that exists while k lineages
// remain subtends i sequences with probability C(n - i - 1, k - 2) / C(n - 1, k - 1), and the
// mutations expected on the k lineages are k W(k), with
//   W(k) = (theta1 + (theta0 - theta1) P(A_n(t) >= k)) / (k (k - 1)).
// With theta0 = theta1 this is Fu's (1995) theta / i, which Tajima (1989) folds to
// theta (1 / i + 1 / (n - i)) (halved at i = n / 2). Summed over i it is Sn(t).
// n below 2 gives empty spectra.

#include <cstdint>
#include <vector>

#include "core/selection.h"

namespace ovelt {

// Folded counts, index 1..n / 2 (index 0 unused), over the sites of class 1 to 4 of from..to in
// the first selection: each nucleotide of a site other than its most common one counts once at
// min(i, n - i), i its number of copies (the first of equally common ones is the common one).
[[nodiscard]] std::vector<double> ObservedFoldedSpectrum(const Selection& sel, int32_t from,
                                                         int32_t to);

// Expected counts, index 1..n - 1.
[[nodiscard]] std::vector<double> ExpectedSpectrum(int32_t n, double theta0, double theta1,
                                                   double t);

// Folds an unfolded spectrum of index 1..n - 1 into index 1..n / 2.
[[nodiscard]] std::vector<double> FoldSpectrum(const std::vector<double>& unfolded, int32_t n);

// Each count divided by their sum (all 0 when the sum is 0); index 0 stays 0.
[[nodiscard]] std::vector<double> SpectrumShares(const std::vector<double>& counts);

}  // namespace ovelt
