#pragma once
// Fu and Li's tests with an outgroup (D and F) and Fay and Wu's H as a command: the intraspecific
// data and the outgroup are two sequence sets; the statistics along a sliding window.

#include <memory>

#include "command/command_binding.h"

namespace ovelt {

[[nodiscard]] std::shared_ptr<const CommandBinding> FuLiOutgroupBinding();

}  // namespace ovelt
