#pragma once
// The head the printer writes above a chart: a rule, the program's name and version, the date,
// the data file, the chart's own title for the LD, divergence and polymorphism charts
// (underlined with "-"), and the sequence sets the run used with their sizes.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace ovelt {

struct GraphPrintFacts {
  std::string FilePath;
  Platform::DateTime Date;
  int16_t GraphKind = 0;
  std::string PopulationName;  // the sequence set in use; empty when none
  int32_t SequencesUsed = 0;
  // The second set of the charts of two sets: population 2 of the divergence chart, the
  // outgroup of Fu and Li's tests with an outgroup.
  std::string SecondName;
  int32_t SecondSequences = 0;
};

[[nodiscard]] std::vector<std::string> GraphPrintHead(const GraphPrintFacts& facts);

}  // namespace ovelt
