#pragma once
// What a computation tells of its progress: the words of the step it is in, and the gauge in
// percent. The runner connects both to the output channel, whose gauge only rises; a computation
// given no progress simply reports nothing.

#include <functional>
#include <string>

namespace ovelt {

struct Progress {
  std::function<void(const std::string& words)> Status;
  std::function<void(int percent)> Gauge;

  void Say(const std::string& words) const {
    if (Status) Status(words);
  }
  void Raise(int percent) const {
    if (Gauge) Gauge(percent);
  }
};

}  // namespace ovelt
