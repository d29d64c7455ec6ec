#pragma once
// The subcommands of `ovelt`. Each family of commands registers its subcommands here from its
// own file; the parsed one is run.

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace ovelt {

// What a subcommand's run gets: where its report and its messages go.
struct CliStreams {
  std::ostream& out;
  std::ostream& err;
};

class CliRegistry {
 public:
  explicit CliRegistry(CLI::App& app) : app_(app) {}

  // Adds a subcommand; `run` is called after parsing when the user chose it. Returns the
  // subcommand so that the caller can declare its options. `state` keeps the option values
  // alive for as long as the registry lives.
  CLI::App& Add(const std::string& name, const std::string& description,
                std::function<int(const CliStreams&)> run);
  template <class T>
  T& Keep() {
    auto holder = std::make_shared<T>();
    kept_.push_back(holder);
    return *holder;
  }

  // Runs the chosen subcommand; 2 when none was chosen.
  int RunChosen(const CliStreams& streams) const;

 private:
  struct Entry {
    CLI::App* app;
    std::function<int(const CliStreams&)> run;
  };
  CLI::App& app_;
  std::vector<Entry> entries_;
  std::vector<std::shared_ptr<void>> kept_;
};

}  // namespace ovelt
