#include "shell/path_display.h"

namespace ovelt {

namespace {
bool IsSeparator(char c) { return c == '/' || c == '\\'; }
}  // namespace

std::string LastPathComponent(const std::string& path) {
  size_t end = path.size();
  while (end > 0 && IsSeparator(path[end - 1])) --end;  // "dir/" names "dir"
  size_t begin = end;
  while (begin > 0 && !IsSeparator(path[begin - 1])) --begin;
  return path.substr(begin, end - begin);
}

std::string ftCortarNombre(const std::string& path, size_t limit) {
  if (path.size() <= limit) return path;
  const std::string name = LastPathComponent(path);
  if (name.size() > limit) return name;

  const std::string head = path.substr(0, 3) + "...";
  // `kept` always starts with the separator that stood before it.
  size_t cut = path.size() - name.size();
  while (cut > 0 && !IsSeparator(path[cut - 1])) --cut;
  if (cut == 0) return name;
  size_t kept_from = cut - 1;  // position of the separator before the file name
  for (;;) {
    if (kept_from == 0) break;
    size_t prev = kept_from;
    while (prev > 0 && !IsSeparator(path[prev - 1])) --prev;
    if (prev == 0) break;  // the next component is the path's first: nothing to shorten
    const size_t candidate = prev - 1;
    if (head.size() + (path.size() - candidate) > limit) break;
    kept_from = candidate;
  }
  return head + path.substr(kept_from);
}

}  // namespace ovelt
