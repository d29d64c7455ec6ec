#pragma once
// "--graph FILE": the chart the run left, drawn as the graph window draws its first series and
// written as SVG (.svg), PNG (.png) or a bitmap (.bmp, or any other name).

#include <string>

#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

inline constexpr const char* kNoGraphLeft = "This run leaves no graph to draw.";

// False, with a message, when the run left no chart or the file could not be written.
bool WriteGraphFile(const OutputChannel& channel, const std::string& path, Platform& platform);

}  // namespace ovelt
