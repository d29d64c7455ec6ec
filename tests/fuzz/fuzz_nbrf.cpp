// Feeds the fuzzer's bytes to the NBRF/PIR reader.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/active_data.h"
#include "fuzz_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  ovelt::fuzzing::ReadAndCheck(std::string_view(reinterpret_cast<const char*>(data), size),
                               ovelt::kNbrf);
  return 0;
}
