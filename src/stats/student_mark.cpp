#include "stats/student_mark.h"

#include <array>
#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {
namespace {

struct StudentRow {
  int32_t df;                     // 0 stands for infinity
  std::array<float, 4> critical;  // P = 0.10, 0.05, 0.01, 0.001, two-tailed
};

// clang-format off
constexpr std::array<StudentRow, 37> kStudentTable{{
    {1, {6.314f, 12.706f, 63.657f, 636.619f}},
    {2, {2.920f, 4.303f, 9.925f, 31.599f}},
    {3, {2.353f, 3.182f, 5.841f, 12.924f}},
    {4, {2.132f, 2.776f, 4.604f, 8.610f}},
    {5, {2.015f, 2.571f, 4.032f, 6.869f}},
    {6, {1.943f, 2.447f, 3.707f, 5.959f}},
    {7, {1.895f, 2.365f, 3.499f, 5.408f}},
    {8, {1.860f, 2.306f, 3.355f, 5.041f}},
    {9, {1.833f, 2.262f, 3.250f, 4.781f}},
    {10, {1.812f, 2.228f, 3.169f, 4.587f}},
    {11, {1.796f, 2.201f, 3.106f, 4.437f}},
    {12, {1.782f, 2.179f, 3.055f, 4.318f}},
    {13, {1.771f, 2.160f, 3.012f, 4.221f}},
    {14, {1.761f, 2.145f, 2.977f, 4.140f}},
    {15, {1.753f, 2.131f, 2.947f, 4.073f}},
    {16, {1.746f, 2.120f, 2.921f, 4.015f}},
    {17, {1.740f, 2.110f, 2.898f, 3.965f}},
    {18, {1.734f, 2.101f, 2.878f, 3.922f}},
    {19, {1.729f, 2.093f, 2.861f, 3.883f}},
    {20, {1.725f, 2.086f, 2.845f, 3.850f}},
    {21, {1.721f, 2.080f, 2.831f, 3.819f}},
    {22, {1.717f, 2.074f, 2.819f, 3.792f}},
    {23, {1.714f, 2.069f, 2.807f, 3.768f}},
    {24, {1.711f, 2.064f, 2.797f, 3.745f}},
    {25, {1.708f, 2.060f, 2.787f, 3.725f}},
    {26, {1.706f, 2.056f, 2.779f, 3.707f}},
    {27, {1.703f, 2.052f, 2.771f, 3.690f}},
    {28, {1.701f, 2.048f, 2.763f, 3.674f}},
    {29, {1.699f, 2.045f, 2.756f, 3.659f}},
    {30, {1.697f, 2.042f, 2.750f, 3.646f}},
    {40, {1.684f, 2.021f, 2.704f, 3.551f}},
    {50, {1.676f, 2.009f, 2.678f, 3.496f}},
    {60, {1.671f, 2.000f, 2.660f, 3.460f}},
    {80, {1.664f, 1.990f, 2.639f, 3.416f}},
    {100, {1.660f, 1.984f, 2.626f, 3.390f}},
    {1000, {1.646f, 1.962f, 2.581f, 3.300f}},
    {0, {1.640f, 1.960f, 2.576f, 3.291f}},
}};
// clang-format on

const StudentRow& RowFor(int32_t df) {
  if (df < 1) throw StatsError(kSubscriptOutOfRangeText);
  if (df <= 30) return kStudentTable[static_cast<size_t>(df - 1)];
  // Finite rows from df 30 on; df lies above the row `i - 1`.
  for (size_t i = 30; i + 1 < kStudentTable.size(); ++i) {
    const int32_t upper = kStudentTable[i].df;
    if (df > upper) continue;
    const int32_t lower = kStudentTable[i - 1].df;
    // The midpoint goes to the lower row.
    return 2 * static_cast<int64_t>(df) <= static_cast<int64_t>(lower) + upper
               ? kStudentTable[i - 1]
               : kStudentTable[i];
  }
  return kStudentTable.back();
}

}  // namespace

std::string StudentMark(double t, int32_t df) {
  const StudentRow& row = RowFor(df);
  const float v = static_cast<float>(std::fabs(t));
  if (v >= row.critical[3]) return "***";
  if (v >= row.critical[2]) return "**";
  if (v >= row.critical[1]) return "*";
  if (v >= row.critical[0]) return "#";
  return "ns";
}

}  // namespace ovelt
