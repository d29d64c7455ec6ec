#pragma once
// NEXUS writer: the whole file from the open data, in the dialect the NEXUS reader takes:
// head comment, matrix (DATA, or TAXA and CHARACTERS), SETS, CODONS, the program's own block
// and, when a codon preference table goes with the data, CODONUSAGE. Lines end with the
// delimiter chosen in the options (`LineDelimiter`).

#include <string>
#include <vector>

#include "core/active_data.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"

namespace ovelt {

// `codon_usage` holds the lines of the CODONUSAGE block, or nothing when no table goes with
// the file.
void WriteNexus(const ActiveData& ad, const WriterStamp& stamp,
                const std::vector<std::string>& codon_usage, WriterLines& out);

}  // namespace ovelt
