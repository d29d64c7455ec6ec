#pragma once
// What a calculator tells the user when it refuses a value: the words of the box and its
// title. The tools never open a window themselves; the face that runs them shows the box.

#include <string>

namespace ovelt {

inline constexpr const char* kOveltTitle = "Ovelt";

struct ToolMessage {
  std::string Text;
  std::string Title = kOveltTitle;

  friend bool operator==(const ToolMessage&, const ToolMessage&) = default;
};

}  // namespace ovelt
