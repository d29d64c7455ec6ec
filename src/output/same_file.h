#pragma once
// Whether two names lead to one file, so that no command overwrites the open session file.

#include <string>

namespace ovelt {

// True for equal names, and for two names of one existing file (relative or absolute paths,
// links). Never throws.
[[nodiscard]] bool SameFile(const std::string& first, const std::string& second);

}  // namespace ovelt
