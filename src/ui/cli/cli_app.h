#pragma once
// The command-line face: every command of the command table, scriptable.
// Exit status: 0 done, 1 refused or failed (the message went to standard error), 2 bad usage.

#include <iosfwd>

namespace ovelt {

int RunCli(int argc, char** argv, std::ostream& out, std::ostream& err);

}  // namespace ovelt
