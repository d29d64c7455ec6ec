#include "ui/cli/graph_module_loader.h"

#include <dlfcn.h>

#include <cstdlib>
#include <string>

namespace ovelt {

std::vector<std::filesystem::path> GraphModuleCandidates(const std::string& program_dir) {
  if (const char* named = std::getenv(kGraphModuleVariable); named != nullptr && *named != '\0')
    return {std::filesystem::path(named) / kGraphModuleFile};
  if (program_dir.empty()) return {};
  const std::filesystem::path base(program_dir);
  return {base / kGraphModuleFile,
          (base / ".." / "lib" / "ovelt" / kGraphModuleFile).lexically_normal()};
}

GraphModule LoadGraphModule(const std::string& program_dir) {
  const std::vector<std::filesystem::path> candidates = GraphModuleCandidates(program_dir);
  for (const std::filesystem::path& file : candidates) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(file, ec)) continue;
    // Symbols resolved now and kept to the module, so a broken one fails here, not mid-drawing.
    void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
      const char* why = dlerror();
      return {nullptr, "The graph module " + file.string() +
                           " could not be loaded: " + (why != nullptr ? why : "unknown error")};
    }
    // The C entries are found by name; the pointer casts are what dlsym is for.
    const auto layout = reinterpret_cast<GraphLayoutFunction>(dlsym(handle, kGraphLayoutEntry));
    const auto save = reinterpret_cast<GraphSaveFunction>(dlsym(handle, kGraphSaveEntry));
    const int found = layout != nullptr ? layout() : 0;
    if (found != kGraphModuleLayout || save == nullptr) {
      dlclose(handle);
      return {nullptr, "The graph module " + file.string() +
                           " was made for another version of this program (layout " +
                           std::to_string(found) + ", this one needs " +
                           std::to_string(kGraphModuleLayout) + ") and was not used"};
    }
    return {save, ""};
  }
  std::string places;
  for (const std::filesystem::path& file : candidates)
    places += (places.empty() ? "" : ", ") + file.string();
  return {nullptr, "The graph module " + std::string(kGraphModuleFile) + " was not found" +
                       (places.empty() ? std::string() : " in: " + places)};
}

}  // namespace ovelt
