#pragma once
// "--graph FILE": the chart the run left, drawn as the graph window draws its first series and
// written as SVG (.svg), PNG (.png) or a bitmap (.bmp). The extension says the format, so a
// name with another one is refused before anything runs.

#include <string>

#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

inline constexpr const char* kNoGraphLeft = "This run leaves no graph to draw.";

// Empty for a name ending in .png, .svg or .bmp (any case); otherwise the words of the refusal.
[[nodiscard]] std::string GraphFileNameFault(const std::string& path);

// False, with a message, when the run left no chart or the file could not be written.
bool WriteGraphFile(const OutputChannel& channel, const std::string& path, Platform& platform);

}  // namespace ovelt
