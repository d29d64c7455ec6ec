#pragma once
// The report of DNA divergence between populations: the region and its net sites, each
// population (sequences, polymorphic sites, mutations, k, Pi and, with the variances, Pi with
// the Jukes and Cantor correction and its standard deviation), the total data, and between the
// populations the four kinds of mutation, Dxy and Da with their Jukes and Cantor values.

#include <string>

#include "analyses/divergence/dna_divergence/dna_divergence_compute.h"

namespace ovelt {

[[nodiscard]] std::string DnaDivergenceReport(const DnaDivergenceResult& result);

}  // namespace ovelt
