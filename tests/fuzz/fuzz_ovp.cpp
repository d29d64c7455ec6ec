// Feeds the fuzzer's bytes to the parser of preferred/unpreferred codon table files. Whatever
// the text, the parser ends with a verdict, and every table it closed is one the collection
// takes: statuses 0 to 6 and a genetic code of 1 to 10.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "formats/ovp_file.h"
#include "fuzz_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using ovelt::fuzzing::Require;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  ovelt::OVPFile parser(1);
  const bool whole = parser.Parse(text);
  Require(whole || parser.bad_content() || !parser.message().empty());
  ovelt::GCPrefUnPref store;
  for (const ovelt::CodPrefUnPref& table : parser.tables()) {
    Require(table.GC() >= 1 && table.GC() <= 10);
    for (int i = 1; i <= 64; ++i) Require(table.prefUnPref(i) >= 0 && table.prefUnPref(i) <= 6);
    store.creatModifyGC(table);
  }
  return 0;
}
