#pragma once
// The boxes of "Tests of Independence" (Form12): one 2 x 2 table of counts typed by the user,
// a b in the first row and c d in the second. The boxes hold text; F12Filtros reads it.

#include <cstdint>
#include <string>

#include "core/command_options.h"

namespace ovelt {

inline constexpr const char* kIndependenceCaption = "Tests of Independence";

struct IndependenceOptions {
  std::string A = "12";
  std::string B = "5";
  std::string C = "3";
  std::string D = "10";

  // The command line takes the cells in reading order: `independence A B C D`.
  template <class V>
  void Visit(V& v) {
    v.Text(A, {"a", "a:", "First row, first column", " Invalid Selection ", true});
    v.Text(B, {"b", "b:", "First row, second column", " Invalid Selection ", true});
    v.Text(C, {"c", "c:", "Second row, first column", " Invalid Selection ", true});
    v.Text(D, {"d", "d:", "Second row, second column", " Invalid Selection ", true});
  }
};

// The table the dialog opens with.
[[nodiscard]] IndependenceOptions F12DefectValues();

}  // namespace ovelt
