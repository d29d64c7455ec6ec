#pragma once
// The file of "Send All Output to File": opened once, written result by result and flushed after
// each, so that what a session has shown is on disk even if the program ends abruptly.

#include <fstream>
#include <string>

namespace ovelt {

class SessionFile {
 public:
  // Creates or empties the file; false when it cannot be opened for writing.
  [[nodiscard]] bool Open(const std::string& path);
  // Writes and flushes; false when the bytes did not reach the file.
  [[nodiscard]] bool Append(const std::string& text);
  void Close();
  [[nodiscard]] bool IsOpen() const { return stream_.is_open(); }

 private:
  std::ofstream stream_;
};

// Writes a whole file at once (binary, so CR LF stays as built); false on any failure.
[[nodiscard]] bool WriteWholeFile(const std::string& path, const std::string& text);

}  // namespace ovelt
