#pragma once
// Significance of a Student's t value by the classic table of two-tailed critical values at
// P = 0.10, 0.05, 0.01 and 0.001, with rows for df 1 to 30, 40, 50, 60, 80, 100, 1000 and
// infinity. The infinite row reads 1.640 at P = 0.10 (not 1.645).
//
// Rows: df 1 to 30 take their own row. Between two tabulated df the nearer row is used, the
// midpoint going to the lower one (df 35 takes the row of 30, df 36 that of 40). Above 1000
// there is no finite row left, and the infinite row is used. df below 1 has no row and throws
// StatsError ("Subscript out of range").
//
// |t| at or above the 0.001 value gives "***", the 0.01 value "**", the 0.05 value "*", the
// 0.10 value "#", else "ns"; t and the table are compared as 32-bit floats.

#include <cstdint>
#include <string>

namespace ovelt {

[[nodiscard]] std::string StudentMark(double t, int32_t df);

}  // namespace ovelt
