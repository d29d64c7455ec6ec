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
#include <utility>

#include "core/region_check.h"

namespace ovelt {

enum class FailureKind { kRefused, kFailed, kTooBig };

class CommandFailure : public std::runtime_error {
 public:
  CommandFailure(FailureKind kind, const std::string& message, std::string reason = "",
                 std::string title = "Ovelt")
      : std::runtime_error(message),
        kind_(kind),
        reason_(std::move(reason)),
        title_(std::move(title)) {}
  [[nodiscard]] FailureKind Kind() const { return kind_; }
  // The title of the box: "Ovelt", but for the few refusals whose box names the fault itself
  // (" Invalid Selection " over "This table can not be computed").
  [[nodiscard]] const std::string& Title() const { return title_; }
  // Why, where the words of the box do not say it (" Invalid Selection "): the command line
  // prints it under the box; empty otherwise.
  [[nodiscard]] const std::string& Reason() const { return reason_; }

 private:
  FailureKind kind_;
  std::string reason_;
  std::string title_;
};

[[noreturn]] inline void Refuse(const std::string& message, std::string reason = "") {
  throw CommandFailure(FailureKind::kRefused, message, std::move(reason));
}
[[noreturn]] inline void Refuse(const SelectionRefusal& refusal) {
  throw CommandFailure(FailureKind::kRefused, refusal.Text, refusal.Reason);
}
[[noreturn]] inline void RefuseTitled(const std::string& message, const std::string& title) {
  throw CommandFailure(FailureKind::kRefused, message, "", title);
}
[[noreturn]] inline void Fail(const std::string& message) {
  throw CommandFailure(FailureKind::kFailed, message);
}
[[noreturn]] inline void FailTooBig(const std::string& message) {
  throw CommandFailure(FailureKind::kTooBig, message);
}

}  // namespace ovelt
