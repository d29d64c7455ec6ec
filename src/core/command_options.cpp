#include "core/command_options.h"

#include <cstdio>

namespace ovelt {

std::string OptionRangeReason(const OptionField& field, const std::string& value,
                              const std::string& min, const std::string& max) {
  std::string label = field.label;
  while (!label.empty() && (label.back() == ':' || label.back() == ' ')) label.pop_back();
  if (label.empty()) label = field.key;
  return label + " must be from " + min + " to " + max + "; it is " + value + ".";
}

std::string OptionRangeCheck::Number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

}  // namespace ovelt
