#include "stats/marks.h"

namespace ovelt {

std::string ChiMark(double x) {
  const float v = static_cast<float>(x);
  if (v >= 10.828f) return "***";
  if (v >= 6.635f) return "** ";
  if (v > 3.841f) return "*  ";
  return "   ";
}

std::string PMarkText(double p) {
  const float v = static_cast<float>(p);
  if (v < 0.001f) return "***";
  if (v < 0.01f) return "**";
  if (v < 0.05f) return "*";
  return "  (not significant)";
}

std::string PMarkShort(double p) {
  const float v = static_cast<float>(p);
  if (v < 0.001f) return " ***";
  if (v < 0.01f) return " **";
  if (v < 0.05f) return " *";
  return " ns";
}

}  // namespace ovelt
