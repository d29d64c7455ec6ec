#include "core/active_data.h"

namespace ovelt {

std::string FixedName(const std::string& name) {
  std::string fixed = name.substr(0, kNameWidth);
  fixed.resize(kNameWidth, ' ');
  return fixed;
}

}  // namespace ovelt
