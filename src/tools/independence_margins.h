#pragma once
// The row and column totals that "Tests of Independence" shows beside the typed 2 x 2 table
// while the user types. A total is shown only when both of its cells read as whole numbers;
// otherwise its place stays empty. The checks of F12Filtros still decide what may be tested.

#include <string>

#include "tools/independence_options.h"

namespace ovelt {

struct IndependenceMargins {
  std::string Row1;  // a + b
  std::string Row2;  // c + d
  std::string Column1;  // a + c
  std::string Column2;  // b + d
  std::string Total;    // a + b + c + d

  friend bool operator==(const IndependenceMargins&, const IndependenceMargins&) = default;
};

[[nodiscard]] IndependenceMargins TableMargins(const IndependenceOptions& boxes);

}  // namespace ovelt
