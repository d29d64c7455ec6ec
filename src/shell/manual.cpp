#include "shell/manual.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "shell/command_registry.h"

namespace ovelt {

namespace {

constexpr const char* kIndex = "index";
constexpr const char* kSuffix = ".md";

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

bool IsFile(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

std::string TitleOf(const std::string& text) {
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line))
    if (line.rfind("# ", 0) == 0) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      return line.substr(2);
    }
  return "";
}

int32_t Occurrences(const std::string& text, const std::string& word) {
  int32_t count = 0;
  for (size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + word.size()))
    ++count;
  return count;
}

}  // namespace

std::vector<std::filesystem::path> ManualCandidates(const std::vector<std::string>& program_dirs) {
  std::vector<std::filesystem::path> candidates;
  if (const char* named = std::getenv(kManualVariable); named != nullptr && *named != '\0')
    candidates.emplace_back(named);
  for (const std::string& dir : program_dirs) {
    if (dir.empty()) continue;
    const std::filesystem::path base(dir);
    for (const std::filesystem::path& place :
         {base / "manual", (base / ".." / "share" / "ovelt" / "manual").lexically_normal()})
      if (std::find(candidates.begin(), candidates.end(), place) == candidates.end())
        candidates.push_back(place);
  }
  return candidates;
}

std::optional<std::filesystem::path> FindManual(const std::vector<std::string>& program_dirs) {
  for (const std::filesystem::path& place : ManualCandidates(program_dirs))
    if (IsFile(place / (std::string(kIndex) + kSuffix))) return place;
  return std::nullopt;
}

std::string CandidatesText(const std::vector<std::filesystem::path>& candidates) {
  std::string text;
  for (const std::filesystem::path& place : candidates)
    text += (text.empty() ? "" : ", ") + place.string();
  return text;
}

Manual::Manual(std::filesystem::path root) : root_(std::move(root)) {}

std::filesystem::path Manual::FileOf(const std::string& name) const {
  return root_ / (name + kSuffix);
}

std::optional<ManualPage> Manual::Page(const std::string& name) const {
  // Names come from users and links: nothing may lead out of the manual.
  if (name.empty() || name.find("..") != std::string::npos || name.front() == '/')
    return std::nullopt;
  const std::optional<std::string> text = Text(name);
  if (!text) return std::nullopt;
  return ManualPage{name, TitleOf(*text)};
}

std::vector<ManualPage> Manual::Pages() const {
  std::vector<ManualPage> pages;
  std::error_code error;
  for (auto it = std::filesystem::recursive_directory_iterator(root_, error);
       !error && it != std::filesystem::recursive_directory_iterator(); it.increment(error)) {
    if (!it->is_regular_file(error) || it->path().extension() != kSuffix) continue;
    std::string name = it->path().lexically_relative(root_).replace_extension().generic_string();
    if (auto page = Page(name)) pages.push_back(std::move(*page));
  }
  std::sort(pages.begin(), pages.end(), [](const ManualPage& a, const ManualPage& b) {
    if ((a.Name == kIndex) != (b.Name == kIndex)) return a.Name == kIndex;
    return a.Name < b.Name;
  });
  return pages;
}

std::optional<ManualPage> Manual::PageFor(const std::string& key) const {
  if (const CommandEntry* entry = FindEntry(key))
    if (auto page = Page("commands/" + entry->Facts.CliName)) return page;
  const std::string name = Lower(key);
  for (const std::string& folder : {std::string("commands/"), std::string("topics/"), std::string()})
    if (auto page = Page(folder + name)) return page;
  return std::nullopt;
}

std::optional<std::string> Manual::Text(const std::string& name) const {
  const std::filesystem::path file = FileOf(name);
  if (!IsFile(file)) return std::nullopt;
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::vector<ManualHit> Manual::Search(const std::string& words) const {
  std::vector<std::string> wanted;
  std::istringstream split(Lower(words));
  for (std::string word; split >> word;) wanted.push_back(word);
  std::vector<ManualHit> hits;
  if (wanted.empty()) return hits;
  for (ManualPage& page : Pages()) {
    const std::string text = Lower(Text(page.Name).value_or(""));
    int32_t total = 0;
    bool all = true;
    for (const std::string& word : wanted) {
      const int32_t count = Occurrences(text, word);
      all = all && count > 0;
      total += count;
    }
    if (all) hits.push_back({std::move(page), total});
  }
  std::stable_sort(hits.begin(), hits.end(),
                   [](const ManualHit& a, const ManualHit& b) { return a.Matches > b.Matches; });
  return hits;
}

}  // namespace ovelt
