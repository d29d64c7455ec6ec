#pragma once
// Helpers of the NEXUS reader tests: a file held in memory, read as NEXUS.

#include <string>

#include "core/active_data.h"
#include "formats/read_file.h"
#include "test_helpers.h"

namespace ovelt::testing {

inline LoadedFile ReadNexusString(const std::string& text) {
  return ReadDataBuffer(text, "t.txt", kNexus);
}

// The sentence of the report that reading `text` gives ("" when it loads).
inline std::string NexusFaultOf(const std::string& text) {
  const std::string error = ErrorOf(text, kNexus);
  if (error.empty()) return "";
  EXPECT_EQ(error.rfind(kHead, 0), 0u) << error;
  return error.substr(kHead.size());
}

// A DATA block of two sequences of four sites around the given extra blocks.
inline std::string TwoByFour(const std::string& after = "") {
  return "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=4;\nFORMAT DATATYPE=DNA;\nMATRIX\n"
         "one ACGT\ntwo ACGA\n;\nEND;\n" + after;
}

}  // namespace ovelt::testing
