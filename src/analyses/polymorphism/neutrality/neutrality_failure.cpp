#include "analyses/polymorphism/neutrality/neutrality_failure.h"

#include <new>

namespace ovelt {

std::string FaultDescription(const std::exception& fault) {
  if (dynamic_cast<const std::bad_alloc*>(&fault) != nullptr) return "Out of memory";
  return fault.what();
}

}  // namespace ovelt
