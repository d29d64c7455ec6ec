#pragma once
// Writing preferred/unpreferred codon tables: the CODONUSAGE block of NEXUS files and the
// ".ovp" table file, which holds the same block.
//
// The classes are written in the order PREF* (status 4), PREF** (5), UNKNOWN (1). Status 6 has
// no head here, although the parser reads PREF***: its codons are written by no table, so a
// table edited with them loses that level once saved and read back. The asymmetry is kept on
// purpose, so that files written here read the same in every version.

#include <string>
#include <vector>

#include "core/pref_tables.h"

namespace ovelt {

// The lines of the block, without line ends: "BEGIN CODONUSAGE;", for every table that is not
// built in and for the table named `in_use`, when it holds information, the line
// "    PREFUNPREFCODONS GENETICCODE=" keyword " " name " = " and its classes (each head on a line
// of its own behind eight blanks, then eight codons to a line, the class closed by "," and the
// last one by ";"), and "END;". Empty when no table is to be written.
[[nodiscard]] std::vector<std::string> CodonUsageBlockLines(const GCPrefUnPref& store,
                                                            const std::string& in_use);

// The lines of one table, from its PREFUNPREFCODONS line to its ";".
[[nodiscard]] std::vector<std::string> PrefTableLines(const CodPrefUnPref& table);

// Writes a ".ovp" file holding `table` alone, lines ended by CR + LF, whole or not at all. False
// when the file could not be written.
[[nodiscard]] bool WriteOvpFile(const std::string& path, const CodPrefUnPref& table);

}  // namespace ovelt
