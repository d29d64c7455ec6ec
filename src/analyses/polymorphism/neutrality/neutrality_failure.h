#pragma once
// The failures of the neutrality tests: a fault inside a computation is thrown as a
// NeutralityFailure whose `what()` is the whole message the user is shown, the test's own words
// followed by the description of the fault.

#include <exception>
#include <stdexcept>
#include <string>

#include "command/command_failure.h"

namespace ovelt {

inline const std::string kTajimaFault = "Error computing Tajima's Test : ";
inline const std::string kFuLiFault = "Error computing Fu and Li's Test: 1 ";
inline const std::string kFuLiOutgroupFault = "Error computing Fu and Li's Test with an outgroup.";
inline const std::string kFayWuFault = "Error computing Fu and Li's Test with an outgroup. M12.";
inline const std::string kTajimaWindowFault = "Error computing Tajima's Test in SW: ";
inline const std::string kFuLiWindowFault = "Error Fu and Li's Test in SW: ";
inline const std::string kFuLiOutgroupWindowFault =
    "Error computing the Fu and Li's Test with outgroup in SW: ";

inline const std::string kNoPolymorphismsTajima =
    "No polymorphisms in the data\nCan't compute Tajima's test";
inline const std::string kNoPolymorphismsLine =
    " There are no polymorphisms in the selected region !!!";
inline const std::string kNoIncludedSequencesOutgroup =
    "There are 0 included sequences. Can't compute the Fu and Li tests with outgroup.";
inline const std::string kThreeSequencesOutgroup =
    "Three or more sequences are needed in the intraspecific data to compute the Fu and Li tests "
    "with outgroup.";
inline const std::string kFsOutOfMemory =
    "           Out of memory !!!\nI can't compute the Fs (Fu 1997) statistic. Try to reduce the "
    "number of programs running, or try to increase the RAM or virtual memory.";
inline const std::string kFsFault = "Error computing the Fs (Fu 1997) statistic.";

// A failed computation of a neutrality test: the run ends and nothing stands.
class NeutralityFailure : public CommandFailure {
 public:
  explicit NeutralityFailure(const std::string& message)
      : CommandFailure(FailureKind::kFailed, message) {}
};

// The description of a fault as the messages end in it ("Out of memory" for an allocation).
[[nodiscard]] std::string FaultDescription(const std::exception& fault);

// Runs `compute`; a fault other than a CommandFailure becomes one with the message `words`,
// followed by the fault's description when `describe` (the messages that end in ": ").
template <class Compute>
auto GuardFault(const std::string& words, bool describe, Compute compute) -> decltype(compute()) {
  try {
    return compute();
  } catch (const CommandFailure&) {
    throw;
  } catch (const std::exception& fault) {
    throw NeutralityFailure(describe ? words + FaultDescription(fault) : words);
  }
}

}  // namespace ovelt
