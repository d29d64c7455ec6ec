// Feeds the fuzzer's bytes to the MEGA reader. The first byte answers the "MEGA Data File"
// dialog (layout and symbols); the rest is the file.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/active_data.h"
#include "fuzz_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint8_t answer = data[0];
  ovelt::MegaOptions options;
  options.Layout = answer & 1;
  options.MatchSymbol = ".i=X"[(answer >> 1) & 3];
  options.GapSymbol = "-~"[(answer >> 3) & 1];
  options.MissingSymbol = "?*"[(answer >> 4) & 1];
  ovelt::fuzzing::ReadAndCheck(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1),
                               ovelt::kMega, options);
  return 0;
}
