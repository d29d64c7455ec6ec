#pragma once
// FASTA writer: the included sequences, each as ">" and its name, then its cells 60 to a line.
// The first header carries the stamp "   [by Ovelt <version>, from file: <name>     <date>]".

#include "core/active_data.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"

namespace ovelt {

void WriteFasta(const ActiveData& ad, const WriterStamp& stamp, WriterLines& out);

}  // namespace ovelt
