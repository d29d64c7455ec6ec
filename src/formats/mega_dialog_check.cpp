#include "formats/mega_dialog_check.h"

namespace ovelt {

namespace {
bool OneSymbol(const std::string& text) { return text.size() == 1 && text[0] != ' '; }
}  // namespace

bool MegaSymbolsAreGiven(const std::string& match, const std::string& gap,
                         const std::string& missing) {
  return OneSymbol(match) && OneSymbol(gap) && OneSymbol(missing);
}

}  // namespace ovelt
