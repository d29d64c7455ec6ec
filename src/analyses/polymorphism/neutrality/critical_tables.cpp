#include "analyses/polymorphism/neutrality/critical_tables.h"

namespace ovelt {

const std::array<FuLiCriticalRow, kFuLiTableRows>& FuLiCriticalRows(FuLiTable table) {
  switch (table) {
    case FuLiTable::kD:
      return FuLiDCriticalRows();
    case FuLiTable::kF:
      return FuLiFCriticalRows();
    case FuLiTable::kDStar:
      return FuLiDStarCriticalRows();
    case FuLiTable::kFStar:
      return FuLiFStarCriticalRows();
  }
  return FuLiDCriticalRows();
}

}  // namespace ovelt
