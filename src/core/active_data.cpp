#include "core/active_data.h"

#include "core/utf8_text.h"

namespace ovelt {

std::string FixedName(const std::string& name) {
  return FitToCharacters(ShownControls(name), kNameWidth);
}

}  // namespace ovelt
