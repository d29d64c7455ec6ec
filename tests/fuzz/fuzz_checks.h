#pragma once
// What every fuzz target demands of a read: it either throws the reader's own ReadError, or
// returns a whole, consistent file layer. Anything else stops the fuzzer.

#include <cstdlib>
#include <string>
#include <string_view>

#include "core/utf8_text.h"
#include "formats/read_file.h"

namespace ovelt::fuzzing {

inline void Require(bool condition) {
  if (!condition) std::abort();
}

inline void CheckLoaded(const LoadedFile& file) {
  Require(file.NumSeqs() >= 1 && file.NumSeqs() <= 32767);
  Require(file.Matrix.seqs() == file.NumSeqs());
  Require(file.Matrix.sites() == file.NumSites);
  for (int s = 1; s <= file.NumSeqs(); ++s) {
    // A field of 20 characters; a UTF-8 letter is one, and no control character is left.
    const std::string& name = file.Names[static_cast<size_t>(s)];
    Require(CharacterCount(name) == 20);
    Require(ShownControls(name) == name);
    const std::string_view cells(file.Matrix.sequence(s), static_cast<size_t>(file.NumSites));
    Require(cells.find_first_not_of("ACGT-?") == std::string_view::npos);
  }
}

// Reads `bytes` as a file of `kind`; a refusal is a fine outcome.
inline void ReadAndCheck(std::string_view bytes, int kind, const MegaOptions& mega = {}) {
  try {
    CheckLoaded(ReadDataBuffer(bytes, "fuzz", kind, mega));
  } catch (const ReadError& error) {
    Require(std::string_view(error.what()).find("fuzz") != std::string_view::npos ||
            std::string_view(error.what()).find("Out of memory") != std::string_view::npos);
  }
}

}  // namespace ovelt::fuzzing
