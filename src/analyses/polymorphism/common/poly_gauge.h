#pragma once
// The progress gauge as a computation sees it: a function that is handed a percentage (0..100)
// as the work advances. The run connects it to the output channel, whose gauge only rises; a
// computation given no gauge simply reports nothing.

#include <functional>

namespace ovelt {

using PolyGauge = std::function<void(int percent)>;

inline void RaiseTo(const PolyGauge& gauge, int percent) {
  if (gauge) gauge(percent);
}

}  // namespace ovelt
