#pragma once
// MEGA writer, sequential: "#MEGA ", a TITLE line with the stamp, then per included sequence
// "#" and its name on a line of its own and its cells 70 to a line. Missing data stay "?".

#include "core/active_data.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"

namespace ovelt {

void WriteMega(const ActiveData& ad, const WriterStamp& stamp, WriterLines& out);

}  // namespace ovelt
