#pragma once
// Reports, saved output and session files end their lines with CR LF, whatever the platform;
// the command line turns them into the platform's line ends when it prints.

namespace ovelt {

inline constexpr const char* kCrLf = "\r\n";

}  // namespace ovelt
