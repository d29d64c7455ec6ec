// Feeds the fuzzer's bytes to the NEXUS reader as the text of a NEXUS file. A load must also
// leave consistent extras: a codon position per site, set members among the sequences.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/active_data.h"
#include "fuzz_checks.h"

namespace {

void CheckExtras(const ovelt::LoadedFile& file) {
  using ovelt::fuzzing::Require;
  Require(file.Nexus.has_value());
  const ovelt::NexusExtras& extras = *file.Nexus;
  Require(extras.CodonPosition.size() == static_cast<size_t>(file.NumSites) + 1);
  for (int16_t position : extras.CodonPosition) Require(position >= 0 && position <= 3);
  for (const ovelt::PoblacionSecuencias& set : extras.SequenceSets) {
    for (double member : set.members()) Require(member >= 1 && member <= file.NumSeqs());
  }
  for (const ovelt::DomainSet& domain : extras.Domains) {
    for (int32_t site : domain.Sites) Require(site >= 1 && site <= file.NumSites);
  }
  Require(extras.Format.GeneticCodeIndex >= 0 && extras.Format.GeneticCodeIndex <= 10);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ovelt::fuzzing::ReadAndCheck(bytes, ovelt::kNexus);
  try {
    CheckExtras(ovelt::ReadDataBuffer(bytes, "fuzz", ovelt::kNexus));
  } catch (const ovelt::ReadError&) {
  }
  return 0;
}
