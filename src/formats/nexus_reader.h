#pragma once
// The NEXUS reader. A NEXUS file is the one format that carries, besides the alignment, what a
// user defined on it: sequence sets, domains, coding regions, genetic code, genome attributes
// and preferred/unpreferred codon tables, all returned in LoadedFile::Nexus.
//
// The dialect the program writes is read as a part of the NEXUS standard (Maddison, Swofford
// and Maddison 1997), so that the files of PAUP, MrBayes, Mesquite, SeaView, PhyML and TreeBASE
// load too. The readings wider than the program's own dialect:
// - rows of a sequential matrix may run over several lines (see nexus_matrix.h);
// - a matrix laid out in blocks without INTERLEAVE in its FORMAT is read as interleaved when
//   it can't be read as sequential;
// - of several TAXA and CHARACTERS blocks (tied by TITLE and LINK), the first CHARACTERS
//   block of DNA is read, with the TAXA block it links (or else the last one before it); the
//   others are kept unread;
// - DATATYPE=NUCLEOTIDE reads as DNA;
// - rows come in the order of the taxon labels when their names are those labels in another
//   order;
// - taxon names follow the standard: a quoted name is one token and keeps its blanks and
//   doubled quotes read as one, an unquoted underscore is a blank. Taxa are told apart by
//   their place, never merged by name: two taxa whose names read alike (names written cut to
//   20 characters may) stay two taxa;
// - lists take blanks around "-", any step, and members by name (see nexus_lists.h).

#include <functional>
#include <string>
#include <string_view>

#include "formats/line_reader.h"
#include "formats/read_file.h"

namespace ovelt {

// Tells the holder of the text that the bytes [from, to) of the text are not needed for now.
using NexusTextRead = std::function<void(size_t, size_t)>;

// Reads a NEXUS text whose lines end in "\n". Throws NexusFault. `read`, when given, is told of
// the parts of the matrix read so far (they may be read again, and must read the same).
[[nodiscard]] LoadedFile ReadNexusText(std::string_view text, NexusTextRead read = {});

}  // namespace ovelt
