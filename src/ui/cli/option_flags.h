#pragma once
// Command-line flags made from a command's option declaration (see core/command_options.h).
// Sequence sets are named on the command line and found after the file is open; a region left
// out is the whole file.

#include <CLI/CLI.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/command_options.h"

namespace ovelt {

class Workbench;

// What the flags leave to be settled once the data file is open.
struct PendingOptionFlags {
  int32_t* region_from = nullptr;
  int32_t* region_to = nullptr;
  struct SetName {
    int16_t* index;
    std::shared_ptr<std::string> name;
    std::string key;
  };
  std::vector<SetName> sets;
};

class OptionFlagBinder final : public OptionVisitor {
 public:
  OptionFlagBinder(CLI::App& app, PendingOptionFlags& pending) : app_(app), pending_(pending) {}

  void Region(int32_t& from, int32_t& to) override {
    app_.add_option("--from", from, "From site: first site of the region (default 1)");
    app_.add_option("--to", to, "to: last site of the region (default the last site)");
    pending_.region_from = &from;
    pending_.region_to = &to;
  }
  void SetIndex(int16_t& index, const OptionField& field) override {
    auto name = std::make_shared<std::string>();
    // The second set of a dialog is also --set2, whatever the dialog calls it (--outgroup).
    std::string flags = "--" + field.key;
    if (pending_.sets.size() == 1 && field.key != "set2") flags += ",--set2";
    app_.add_option(flags, *name, field.help + " (a set named with --set-def)");
    pending_.sets.push_back({&index, name, field.key});
  }
  void Flag(bool& value, const OptionField& field) override {
    app_.add_flag("--" + field.key, value, Describe(field));
  }
  void Integer(int32_t& value, const OptionField& field, int64_t, int64_t) override {
    app_.add_option("--" + field.key, value, Describe(field))->capture_default_str();
  }
  void Real(double& value, const OptionField& field, double, double) override {
    app_.add_option("--" + field.key, value, Describe(field))->capture_default_str();
  }
  void Choice(int16_t& value, const OptionField& field, const std::vector<std::string>& texts,
              int16_t first_value) override {
    std::string help = Describe(field) + ":";
    for (size_t i = 0; i < texts.size(); ++i)
      help += " " + std::to_string(first_value + static_cast<int>(i)) + " \"" + texts[i] + "\"";
    app_.add_option("--" + field.key, value, help)->capture_default_str();
  }
  void Text(std::string& value, const OptionField& field) override {
    if (field.positional) {
      app_.add_option(field.key, value, Describe(field))->required();
    } else {
      app_.add_option("--" + field.key, value, Describe(field));
    }
  }

 private:
  static std::string Describe(const OptionField& field) {
    return field.help.empty() ? field.label : field.help + " (\"" + field.label + "\")";
  }
  CLI::App& app_;
  PendingOptionFlags& pending_;
};

template <class Options>
void BindOptionFlags(CLI::App& app, Options& options, PendingOptionFlags& pending) {
  OptionFlagBinder binder(app, pending);
  options.Visit(binder);
}

// After the file is open: set names become set indices, a missing region end becomes the last
// site. False (message shown) for an unknown set name.
bool ResolveOptionFlags(const PendingOptionFlags& pending, Workbench& wb);

}  // namespace ovelt
