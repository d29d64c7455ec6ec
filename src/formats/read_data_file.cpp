// Opening a data file: find its kind from the first line and hand it to that kind's reader.
// A reader either returns a complete file layer or throws; nothing is ever half returned.

#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>

#include "core/active_data.h"
#include "files/mapped_file.h"
#include "formats/line_reader.h"
#include "formats/read_file.h"
#include "formats/read_messages.h"
#include "formats/readers.h"

namespace ovelt {
namespace {

using MegaQuestion = std::function<std::optional<MegaOptions>()>;

// More than any first line the kind test needs to see (a PHYLIP header's blanks and digits).
constexpr size_t kKindTestBytes = 4096;

LoadedFile ReadKind(LineReader& in, const std::string& path, std::optional<int> kind,
                    const MegaQuestion& ask_mega) {
  // The kind test looks at the start of the first line only, so that a file without line ends
  // (a device such as /dev/zero) is refused at once rather than read without end.
  if (!kind) kind = DetectFileKind(std::string(in.Peek(kKindTestBytes)));
  switch (*kind) {
    case kNbrf:
      return ReadNbrf(in, path);
    case kFasta:
      return ReadFasta(in, path);
    case kPhylip:
      return ReadPhylip(in, path);
    case kNexus:
      return ReadNexus(in, path);
    case kMega: {
      const std::optional<MegaOptions> options = ask_mega();
      if (!options) throw ReadCancelled();
      return ReadMega(in, path, *options);
    }
    default:
      throw ReadError(BadFormatText(path));
  }
}

// Runs a read and turns a lack of memory into the system's own report.
LoadedFile ReadGuarded(LineReader& in, const std::string& path, std::optional<int> kind,
                       const MegaQuestion& ask_mega) {
  try {
    return ReadKind(in, path, kind, ask_mega);
  } catch (const std::bad_alloc&) {
    throw ReadError(kOutOfMemoryText);
  } catch (const std::length_error&) {
    throw ReadError(kOutOfMemoryText);
  }
}

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

LoadedFile ReadDataFile(const std::string& path, Platform& platform, const ReadProgress& progress) {
  const bool from_stdin = path == kStandardInputPath;
  std::unique_ptr<std::FILE, FileCloser> opened;
  if (!from_stdin) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) throw ReadError(FileNotOpenedText(path));
    opened.reset(std::fopen(path.c_str(), "rb"));
    if (!opened) throw ReadError(FileNotOpenedText(path));
  }
  std::FILE* file = from_stdin ? stdin : opened.get();
  // The size, for the gauge, of the file already open: a pipe has none.
  struct stat info {};
  const bool sized = ::fstat(::fileno(file), &info) == 0 && S_ISREG(info.st_mode);
  const std::string file_name = from_stdin ? path : std::filesystem::path(path).filename().string();
  const MegaQuestion ask_mega = [&] { return platform.AskMegaOptions(file_name); };
  // A regular file is read where the system maps it, without copying it into a buffer, and
  // the pages behind the reading are given back as it goes.
  if (sized) {
    MappedFile map(::fileno(file), static_cast<size_t>(info.st_size));
    if (map.valid()) {
      LineReader in(map.bytes(), progress,
                    [&map](size_t from, size_t to) { map.Release(from, to); });
      return ReadGuarded(in, path, std::nullopt, ask_mega);
    }
  }
  LineReader in(file, sized ? static_cast<int64_t>(info.st_size) : 0, progress);
  return ReadGuarded(in, path, std::nullopt, ask_mega);
}

LoadedFile ReadDataBuffer(std::string_view bytes, const std::string& display_path,
                          std::optional<int> kind, const MegaOptions& mega,
                          const ReadProgress& progress) {
  LineReader in(bytes, progress);
  return ReadGuarded(in, display_path, kind, [&] { return std::optional<MegaOptions>(mega); });
}

}  // namespace ovelt
