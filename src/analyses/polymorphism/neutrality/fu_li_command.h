#pragma once
// Fu and Li's tests (D* and F*), Fu's Fs and Strobeck's S as a command; D* and F* along a sliding
// window.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> FuLiBinding();

}  // namespace ovelt
