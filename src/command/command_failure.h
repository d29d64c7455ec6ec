#pragma once
// The one way a command stops early. Anything that runs inside a command throws a
// CommandFailure with the user's words; the runner catches it, shows the words and leaves the
// program as it was before the run. The kind says what becomes of the dialog and the windows:
//
//   kRefused  the options or the selection cannot be used: the dialog stays open
//   kFailed   the computation could not be done: the run ends, nothing stands
//   kTooBig   the result could not be held or shown: the run ends and the result windows close

#include <stdexcept>
#include <string>

namespace ovelt {

enum class FailureKind { kRefused, kFailed, kTooBig };

class CommandFailure : public std::runtime_error {
 public:
  CommandFailure(FailureKind kind, const std::string& message)
      : std::runtime_error(message), kind_(kind) {}
  [[nodiscard]] FailureKind Kind() const { return kind_; }

 private:
  FailureKind kind_;
};

[[noreturn]] inline void Refuse(const std::string& message) {
  throw CommandFailure(FailureKind::kRefused, message);
}
[[noreturn]] inline void Fail(const std::string& message) {
  throw CommandFailure(FailureKind::kFailed, message);
}
[[noreturn]] inline void FailTooBig(const std::string& message) {
  throw CommandFailure(FailureKind::kTooBig, message);
}

}  // namespace ovelt
