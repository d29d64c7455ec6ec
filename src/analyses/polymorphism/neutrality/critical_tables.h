#pragma once
// The stored critical values of the neutrality tests (`CriticalTable`), as 32-bit floats indexed
// by row: Tajima's D (Tajima 1989, rows 4..76) and the four tables of Fu and Li (1993): D and F
// with an outgroup (rows 3..50), D* and F* without (rows 4..50). Rows below the first hold n = 0.
// The values are built into the program (critical_tables_data.cpp); nothing is read at run time.

#include <array>
#include <cstdint>

namespace ovelt {

inline constexpr int kTajimaTableRows = 77;  // rows 0..76, used from 4
inline constexpr int kFuLiTableRows = 51;    // rows 0..50, used from 3 (D, F) or 4 (D*, F*)

// Two-sided levels of the Tajima table: P = 0.10, 0.05, 0.01, 0.001.
inline constexpr int kTajimaLevels = 4;
// Two-sided levels of the Fu and Li tables: P = 0.10, 0.05, 0.02.
inline constexpr int kFuLiLevels = 3;

struct TajimaCriticalRow {
  int32_t n = 0;
  std::array<float, kTajimaLevels> lower{};  // by level, 10 % first
  std::array<float, kTajimaLevels> upper{};
};

struct FuLiCriticalRow {
  int32_t n = 0;
  std::array<float, kFuLiLevels> lower{};
  std::array<float, kFuLiLevels> upper{};
  bool published = false;  // a printed value of Fu and Li (1993), not a simulated one
};

enum class FuLiTable { kD, kF, kDStar, kFStar };

// `TajimaCritical`: row i holds n = i up to 50, then 55 .. 100 by 5, 110, 120, 130, 140, 150,
// 175, 200, 250 .. 500 by 50, 600, 800, 1000.
[[nodiscard]] const std::array<TajimaCriticalRow, kTajimaTableRows>& TajimaCriticalRows();

// `FuLiD`, `FuLiF`, `FuLiDStar`, `FuLiFStar`: row i holds n = i up to 30, then 32 .. 50 by 2 and
// 55 .. 100 by 5.
[[nodiscard]] const std::array<FuLiCriticalRow, kFuLiTableRows>& FuLiDCriticalRows();
[[nodiscard]] const std::array<FuLiCriticalRow, kFuLiTableRows>& FuLiFCriticalRows();
[[nodiscard]] const std::array<FuLiCriticalRow, kFuLiTableRows>& FuLiDStarCriticalRows();
[[nodiscard]] const std::array<FuLiCriticalRow, kFuLiTableRows>& FuLiFStarCriticalRows();

[[nodiscard]] const std::array<FuLiCriticalRow, kFuLiTableRows>& FuLiCriticalRows(FuLiTable table);

// First used row of a Fu and Li table: 3 for the outgroup tables, 4 for D* and F*.
[[nodiscard]] constexpr int FuLiFirstRow(FuLiTable table) {
  return table == FuLiTable::kD || table == FuLiTable::kF ? 3 : 4;
}

}  // namespace ovelt
