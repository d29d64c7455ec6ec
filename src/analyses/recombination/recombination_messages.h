#pragma once
// The words of the Recombination command's boxes.

#include <string>

namespace ovelt {

inline const std::string kRecombinationBusy = "Computing Rm and 4Nc parameters...";
inline const std::string kCantEstimateRecombination = "Can't estimate 4Nc and Rm parameters";
inline const std::string kNoPolymorphismsRecombination = "No polymorphisms in the data.";
inline const std::string kHudsonGFault = "Error computing g(C,n) function";
inline const std::string kRecombinationParameterFault =
    "Error computing the recombination parameter";
inline const std::string kRmFault = "Error computing Recombination Rm";
inline const std::string kRmOutOfMemory =
    "I can't estimate the RM value. Try to reduce the number of polymorphic sites to be "
    "analyzed\n             Out of memory !!!";

// A message followed by the data file it concerns, as the boxes of this command end.
[[nodiscard]] inline std::string WithDataFile(const std::string& words, const std::string& path) {
  return words + "\n\nInput data file: " + path;
}

}  // namespace ovelt
