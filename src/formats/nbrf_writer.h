#pragma once
// NBRF/PIR writer: per included sequence ">DL;" and its name, a title line "Sequence: " n and
// the stamp, then the cells 70 to a line with "*" behind the last cell.

#include "core/active_data.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"

namespace ovelt {

void WriteNbrf(const ActiveData& ad, const WriterStamp& stamp, WriterLines& out);

}  // namespace ovelt
