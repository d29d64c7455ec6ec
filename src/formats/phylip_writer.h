#pragma once
// PHYLIP writer, sequential: a first line with the numbers of sequences and sites, then each
// included sequence as a ten-character name field and its cells in groups of ten, six groups
// to a line. Continuation lines start with cells at once, so no reader takes them for names.

#include "core/active_data.h"
#include "formats/writer_lines.h"

namespace ovelt {

void WritePhylip(const ActiveData& ad, WriterLines& out);

}  // namespace ovelt
