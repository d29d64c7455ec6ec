#pragma once
// The head the printer writes above a chart: a rule, the program's name and version, the date,
// the data file, the chart's own title for the LD, divergence and polymorphism charts
// (underlined with "-"), and the sequences the run used.

#include <cstdint>
#include <string>
#include <vector>

#include "ui/platform.h"

namespace ovelt {

struct GraphPrintFacts {
  std::string FilePath;
  Platform::DateTime Date;
  int16_t GraphKind = 0;
  std::string PopulationName;  // the sequence set in use; empty when none
  int32_t SequencesUsed = 0;
};

[[nodiscard]] std::vector<std::string> GraphPrintHead(const GraphPrintFacts& facts);

}  // namespace ovelt
