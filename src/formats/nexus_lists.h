#pragma once
// Lists of taxa or characters in SETS and CODONS commands: numbers, ranges "a-b", ranges with a
// step "a-b\3", "." for the last one and "ALL" for all of them. Read wider than the program's
// own writer needs, as the NEXUS standard allows and TreeBASE and Mesquite write: blanks around
// "-" ("1 - 629"), any step, and members given by name (a taxon or character label, or an
// earlier set), also as the ends of a range.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "formats/nexus_lexer.h"

namespace ovelt {

struct NexusListContext {
  int32_t last = 0;  // what "." stands for, and the highest number allowed
  // Members named by a label or a set, looked up by NexusNameKey; nullopt for an unknown name.
  std::function<std::optional<std::vector<int32_t>>(const std::string& key)> lookup;
};

// The members named by args[from, to), each once, in the order of first mention. Throws
// NexusFault(error_code) for an item that names nothing or lies outside 1..last.
[[nodiscard]] std::vector<int32_t> ReadNexusList(const std::vector<NexusToken>& args, size_t from,
                                                 size_t to, const NexusListContext& context,
                                                 int error_code);

}  // namespace ovelt
