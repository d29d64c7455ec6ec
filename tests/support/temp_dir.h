#pragma once
// A fresh directory for one test, removed with everything in it when the test ends.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace ovelt::testing {

class TempDir {
 public:
  TempDir() {
    std::random_device seed;
    path_ = std::filesystem::temp_directory_path() /
            ("ovelt-test-" + std::to_string(seed()) + "-" + std::to_string(seed()));
    std::filesystem::create_directories(path_);
  }
  ~TempDir() {
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::string File(const std::string& name) const { return (path_ / name).string(); }

  // Writes `bytes` to a file of this directory and returns its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    const std::string file = File(name);
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

 private:
  std::filesystem::path path_;
};

inline std::string ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace ovelt::testing
