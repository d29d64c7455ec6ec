#include "shell/recent_files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "files/whole_file.h"

namespace ovelt {

namespace {

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return "";
  const auto last = text.find_last_not_of(" \t\r\n");
  return text.substr(first, last - first + 1);
}

const std::string kEmpty;

}  // namespace

std::string RecentFiles::CandidatePath(const std::string& dir) const {
  if (dir.empty()) return "";
  return (std::filesystem::path(dir) / kRecentFilesName).string();
}

const std::string& RecentFiles::Entry(int index) const {
  if (index < 1 || index > 4) return kEmpty;
  return entries_[static_cast<size_t>(index)];
}

int RecentFiles::Count() const {
  int count = 0;
  for (int i = 1; i <= 4; ++i)
    if (!entries_[static_cast<size_t>(i)].empty()) ++count;
  return count;
}

std::string RecentFiles::MenuText(int index) const {
  return "&" + std::to_string(index) + " " + Entry(index);
}

void RecentFiles::fConsultaCFA() {
  for (auto& entry : entries_) entry.clear();
  store_path_.clear();
  for (const std::string& dir : {platform_.ProgramDirectory(), platform_.ConfigDirectory()}) {
    const std::string file = CandidatePath(dir);
    if (file.empty()) continue;
    std::ifstream in(file, std::ios::binary);
    if (!in) continue;
    store_path_ = file;
    std::string line;
    int n = 0;
    while (n < 4 && std::getline(in, line)) {
      line = Trim(line);
      if (line.empty()) continue;
      entries_[static_cast<size_t>(++n)] = line;
    }
    return;
  }
}

void RecentFiles::fActualizaCFA(const std::string& path, int index) {
  int found = 0;
  if (index > 0 && index <= 4) {
    found = index;
  } else {
    const std::string wanted = Trim(path);
    for (int k = 1; k <= 4; ++k)
      if (!entries_[static_cast<size_t>(k)].empty() &&
          Trim(entries_[static_cast<size_t>(k)]) == wanted)
        found = k;
  }
  const std::string top =
      (index > 0 && index <= 4) ? entries_[static_cast<size_t>(index)] : Trim(path);
  // Entries above the one found move down by one; when none was found the fourth falls off.
  const int last = found == 0 ? 4 : found;
  const std::array<std::string, 5> before = entries_;
  for (int k = last; k > 1; --k)
    entries_[static_cast<size_t>(k)] = entries_[static_cast<size_t>(k - 1)];
  entries_[1] = top;
  // The list as it was read, opened again at its top: the file already says so.
  if (entries_ == before && !store_path_.empty()) return;

  // The program's directory first, the user's configuration directory second.
  int first_error = 0;
  for (const std::string& dir : {platform_.ProgramDirectory(), platform_.ConfigDirectory()}) {
    if (dir.empty()) continue;
    std::error_code ec;
    std::filesystem::create_directories(dir, ec);
    const std::string file = CandidatePath(dir);
    errno = 0;
    if (WriteTo(file)) {
      store_path_ = file;
      return;
    }
    if (first_error == 0) first_error = errno;
  }
  if (first_error == EROFS) {
    platform_.MessageBox(
        "Ovelt can not save some configuration settings in the Application File Directory. Is "
        "it a Read-Only Directory ? ",
        MsgIcon::kWarning);
  } else {
    platform_.MessageBox(
        "Ovelt can not save some configuration settings likely because you do not have "
        "permissions to write in the Application File Directory. \nYou should contact with "
        "your system administrator. \nYou can use Ovelt as usual.",
        MsgIcon::kWarning);
  }
}

bool RecentFiles::WriteTo(const std::string& file_path) const {
  // One line per non-empty entry; the old list is replaced only by a whole new one.
  std::string text;
  for (int k = 1; k <= 4; ++k) {
    const std::string& entry = entries_[static_cast<size_t>(k)];
    if (!entry.empty()) text += entry + "\r\n";
  }
  // Replaced whole by a rename, but not waited for on the disk: the list is rewritten at every
  // open, and a crash can at worst take back its last change.
  return WriteWholeFile(file_path, text, Durability::kRenamedOnly);
}

}  // namespace ovelt
