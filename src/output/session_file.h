#pragma once
// The file of "Send All Output to File": opened once, written result by result, and put in
// place whole when the session closes. Until then its bytes gather in a temporary file beside
// it (handed to the system after each result, so a program that ends abruptly leaves them
// there), and a file of the same name stays as it was: a failed or broken session never leaves
// a cut file under the chosen name.

#include <memory>
#include <string>

#include "files/whole_file.h"

namespace ovelt {

class SessionFile {
 public:
  // Prepares the file; false when it cannot be written.
  [[nodiscard]] bool Open(const std::string& path);
  // Writes and flushes; false when the bytes did not reach the file.
  [[nodiscard]] bool Append(const std::string& text);
  // Puts the file in place; false when it could not be (the old file, if any, then stays).
  // Nothing to do, and true, when no file is open.
  bool Close();
  // Drops what was written; the old file, if any, stays.
  void Abandon();
  [[nodiscard]] bool IsOpen() const { return file_ != nullptr; }

 private:
  std::unique_ptr<WholeFileWriter> file_;
};

}  // namespace ovelt
