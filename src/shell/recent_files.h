#pragma once
// The list of the four most recently opened data files, kept in "OVELTCFA.INI": one path a
// line, most recent first. The file lives in the program's directory when that can be
// written, else in the user's configuration directory; only when neither can be written is
// the user warned, and work goes on.

#include <array>
#include <optional>
#include <string>

#include "platform/platform.h"

namespace ovelt {

inline constexpr const char* kRecentFilesName = "OVELTCFA.INI";

class RecentFiles {
 public:
  explicit RecentFiles(Platform& platform) : platform_(platform) {}

  // Loads the entries (at most four lines) from the first directory that holds the file.
  void fConsultaCFA();
  // Index 0: `path` moves (or is added) to the top. Index k > 0: entry k moves to the top.
  // Then the file is rewritten whole.
  void fActualizaCFA(const std::string& path, int index);

  // 1-based; "" when the entry is empty.
  [[nodiscard]] const std::string& Entry(int index) const;
  [[nodiscard]] int Count() const;
  // The menu text of entry n: "&" n " " path.
  [[nodiscard]] std::string MenuText(int index) const;
  // Where the list was last written or read; "" when nowhere.
  [[nodiscard]] const std::string& StorePath() const { return store_path_; }

 private:
  [[nodiscard]] std::string CandidatePath(const std::string& dir) const;
  bool WriteTo(const std::string& file_path) const;

  Platform& platform_;
  std::array<std::string, 5> entries_{};  // index 0 unused
  std::string store_path_;
};

}  // namespace ovelt
