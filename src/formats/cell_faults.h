#pragma once
// The report of a walk that stopped on a fault, in the words of the FASTA, NBRF/PIR and MEGA
// readers.

#include <string>

#include "formats/sequence_cells.h"

namespace ovelt {

// Throws ReadError for a walk that ended in kRefused, kDotInFirst or kFull while sequence
// `sequence` was read. A first sequence that fills the whole 32-bit site range is a bad file;
// a later one that runs past the first's length is "Sequences are of unequal lengths".
[[noreturn]] void ThrowCellFault(const std::string& path, const WalkResult& walk, int sequence);

}  // namespace ovelt
