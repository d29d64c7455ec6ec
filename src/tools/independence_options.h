#pragma once
// The boxes of "Tests of Independence" (Form12): one 2 x 2 table of counts typed by the user,
// a b in the first row and c d in the second. The boxes hold text; F12Filtros reads it.

#include <cstdint>
#include <string>

#include "core/command_options.h"

namespace ovelt {

// The command's number in the command table, and its result's code in the title table.
inline constexpr int16_t kIndependenceCommand = 41;
inline constexpr int16_t kIndependenceResultCode = 40;
inline constexpr const char* kIndependenceCaption = "Tests of Independence";

struct IndependenceOptions {
  std::string A;
  std::string B;
  std::string C;
  std::string D;

  template <class V>
  void Visit(V& v) {
    v.Text(A, {"a", "a:", "First row, first column"});
    v.Text(B, {"b", "b:", "First row, second column"});
    v.Text(C, {"c", "c:", "Second row, first column"});
    v.Text(D, {"d", "d:", "Second row, second column"});
  }
};

// The table the dialog opens with.
[[nodiscard]] IndependenceOptions F12DefectValues();

}  // namespace ovelt
