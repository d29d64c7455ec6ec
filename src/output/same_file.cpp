#include "output/same_file.h"

#include <filesystem>
#include <system_error>

namespace ovelt {

bool SameFile(const std::string& first, const std::string& second) {
  if (first == second) return true;
  std::error_code error;
  if (std::filesystem::equivalent(first, second, error) && !error) return true;
  // Names of files not yet written: compare their absolute, normalised forms.
  const auto a = std::filesystem::weakly_canonical(first, error);
  if (error) return false;
  const auto b = std::filesystem::weakly_canonical(second, error);
  if (error) return false;
  return a == b;
}

}  // namespace ovelt
