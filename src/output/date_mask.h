#pragma once
// Date and time masks of the Visual Basic `Format` convention, such as "dd - mmmm - yyyy"
// ("05 - March - 2004") and "hh:mm:ss". Letters: d, dd (day), ddd, dddd (weekday), m, mm
// (month), mmm, mmmm (month in English words), y (day of the year), yy, yyyy, h, hh, n, nn
// (minutes), s, ss. As in the classic runtime, "m" or "mm" right after an hour or right before a
// second means minutes. Any other character is copied as it stands.

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace ovelt {

// nullopt when the text is not a date or time mask.
[[nodiscard]] std::optional<std::string> ApplyDateMask(const Platform::DateTime& when,
                                                       std::string_view mask);

}  // namespace ovelt
