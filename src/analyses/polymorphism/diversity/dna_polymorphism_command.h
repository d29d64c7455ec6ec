#pragma once
// DNA polymorphism as a command: segregating sites, haplotypes, nucleotide diversity and theta
// with their variances; Pi with missing data; Pi, Theta and S (or G+C) along a sliding window.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> DnaPolymorphismBinding();

}  // namespace ovelt
