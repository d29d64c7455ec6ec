#pragma once
// Shortening of a path for display in the status line and menus.

#include <string>

namespace ovelt {

// A path no longer than `limit` is returned as it is. Otherwise the first three characters of
// the path, "...", and as many whole trailing components as fit within `limit` (at least the
// last one). A file name that alone is longer than the limit is returned whole.
// Both "/" and "\" separate components.
[[nodiscard]] std::string ftCortarNombre(const std::string& path, size_t limit);

// The last component of a path.
[[nodiscard]] std::string LastPathComponent(const std::string& path);

}  // namespace ovelt
