#pragma once
// The region check of every option dialog: a region is two site numbers, both included.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace ovelt {

inline const std::string kInvalidSelection = " Invalid Selection ";

// False when `to` is below `from` or below 1, `from` is below 1, or either is above `sel_sites`.
[[nodiscard]] constexpr bool RegionIsValid(int32_t from, int32_t to, int32_t sel_sites) {
  return !(to < from || from < 1 || to > sel_sites || from > sel_sites || to < 1);
}

// Why a region fails the check, for a user who does not see the dialog's fields (the command
// line prints it under the box): "The region 5-1000 is not within the sites, which run from 1
// to 900."
[[nodiscard]] std::string RegionFaultReason(int32_t from, int32_t to, int32_t sel_sites);

// A refused selection: the words of the box (" Invalid Selection " for most) and, where those
// words do not say it, why (empty otherwise).
struct SelectionRefusal {
  std::string Text;
  std::string Reason;
};

// Thrown by operations handed a region that fails the check; `what()` is " Invalid Selection ".
class InvalidRegion : public std::runtime_error {
 public:
  InvalidRegion() : std::runtime_error(kInvalidSelection) {}
};

}  // namespace ovelt
