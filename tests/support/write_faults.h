#pragma once
// Runs a piece of a test in a child process whose files may not grow past a number of bytes
// (RLIMIT_FSIZE). Two faults come of it, both at an exact byte and without any timing:
//  - kDiskFull: the write that would pass the limit fails (EFBIG), as on a full disk, and the
//    program goes on to handle the failure;
//  - kKilled: the same write kills the process on the spot (SIGXFSZ), as a power cut or a
//    `kill -9` in the middle of a write would.
// Pipes and terminals are not files, so the child's other output is not limited.

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <functional>

namespace ovelt::testing {

enum class WriteFault { kDiskFull, kKilled };

struct ChildEnd {
  bool exited = false;  // ended by _exit, with `code`
  int code = -1;
  bool killed = false;  // ended by signal `signal`
  int signal = 0;
};

// Runs `body` in a child whose files stop at `limit_bytes`; its return value is the exit code.
inline ChildEnd RunWithWriteLimit(uint64_t limit_bytes, WriteFault fault,
                                  const std::function<int()>& body) {
  const pid_t pid = ::fork();
  if (pid == 0) {
    const rlimit no_core{0, 0};
    ::setrlimit(RLIMIT_CORE, &no_core);
    ::signal(SIGXFSZ, fault == WriteFault::kDiskFull ? SIG_IGN : SIG_DFL);
    const rlimit size{limit_bytes, limit_bytes};
    ::setrlimit(RLIMIT_FSIZE, &size);
    ::_exit(body());
  }
  ChildEnd end;
  int status = 0;
  if (pid < 0 || ::waitpid(pid, &status, 0) != pid) return end;
  if (WIFEXITED(status)) {
    end.exited = true;
    end.code = WEXITSTATUS(status);
  } else if (WIFSIGNALED(status)) {
    end.killed = true;
    end.signal = WTERMSIG(status);
  }
  return end;
}

// How a child should end under `fault`: killed by it, or gone on to exit with `code`.
inline bool EndedBy(const ChildEnd& end, WriteFault fault, int code) {
  return fault == WriteFault::kKilled ? end.killed && end.signal == SIGXFSZ
                                      : end.exited && end.code == code;
}

}  // namespace ovelt::testing
