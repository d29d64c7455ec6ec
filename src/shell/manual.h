#pragma once
// The manual: Markdown pages shipped beside the program (`manual/` of the source tree), one page
// per command named by its command-line name under commands/, the topics under topics/, and
// index.md linking them all. Both faces read it through here: `ovelt help COMMAND` prints a
// page as text, the desktop's help window renders it.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace ovelt {

// The environment variable that names the manual's folder ahead of the usual places.
inline constexpr const char* kManualVariable = "OVELT_MANUAL";

// Where the manual is looked for, in order: $OVELT_MANUAL, then for each program directory
// <dir>/manual (a build tree, or an install beside the binaries) and <dir>/../share/ovelt/manual
// (an install under a prefix).
[[nodiscard]] std::vector<std::filesystem::path> ManualCandidates(
    const std::vector<std::string>& program_dirs);

// The first candidate that holds index.md; nullopt when the manual was removed.
[[nodiscard]] std::optional<std::filesystem::path> FindManual(
    const std::vector<std::string>& program_dirs);

// The candidates as one line, for the message that says where the manual was not found.
[[nodiscard]] std::string CandidatesText(const std::vector<std::filesystem::path>& candidates);

struct ManualPage {
  std::string Name;   // its path under the manual without ".md": "commands/tajima", "index"
  std::string Title;  // its first "# " heading
};

struct ManualHit {
  ManualPage Page;
  int32_t Matches = 0;  // occurrences of the words searched, all together
};

class Manual {
 public:
  explicit Manual(std::filesystem::path root);

  [[nodiscard]] const std::filesystem::path& Root() const { return root_; }
  [[nodiscard]] std::filesystem::path FileOf(const std::string& name) const;

  // Every page: the index first, then by name (commands/..., then topics/...).
  [[nodiscard]] std::vector<ManualPage> Pages() const;

  // The page of a command, by its command-line name, number or title; or a page by its name,
  // with or without its folder ("calc", "gaps", "topics/gaps"). nullopt when there is none.
  [[nodiscard]] std::optional<ManualPage> PageFor(const std::string& key) const;

  // The Markdown text of a page; nullopt when it cannot be read.
  [[nodiscard]] std::optional<std::string> Text(const std::string& name) const;

  // The pages that hold every word of `words` (case ignored), most occurrences first.
  [[nodiscard]] std::vector<ManualHit> Search(const std::string& words) const;

 private:
  [[nodiscard]] std::optional<ManualPage> Page(const std::string& name) const;

  std::filesystem::path root_;
};

}  // namespace ovelt
