#pragma once
// Sequence names as the writers put them in a file. A name is the 20-character field of the
// included layer without its trailing blanks, then cleaned for the format:
//  - NEXUS and MEGA: blank and tab become "_"; the punctuation of codes 33 to 47 ("!" to "/"),
//    "`" (96) and the two quote bytes 146 and 180 standing alone are dropped, since both formats
//    give them a meaning; a name left empty is "Seq_XXX".
//  - FASTA, NBRF and PHYLIP: blanks become "_"; PHYLIP then keeps ten characters, padded with
//    blanks.
// A letter written in UTF-8 is one character: it is kept whole, and counted once.

#include <string>

namespace ovelt {

inline constexpr const char* kEmptyNameStandIn = "Seq_XXX";

enum class NameMode { kNexusMega, kPlain };

// The name without its trailing blanks.
[[nodiscard]] std::string TrimmedName(const std::string& field);

[[nodiscard]] std::string CleanName(const std::string& field, NameMode mode);

// A NEXUS name: the cleaned name, in single quotes when it still holds a character that NEXUS
// reads as punctuation ("[", "]", "{", "}", "\", ";", ":", "=", "<", ">"), so that a reader
// takes it as one name rather than as a comment or the end of a statement.
[[nodiscard]] std::string NexusName(const std::string& field);

// The ten-character name field of a PHYLIP row.
[[nodiscard]] std::string PhylipNameField(const std::string& field);

}  // namespace ovelt
