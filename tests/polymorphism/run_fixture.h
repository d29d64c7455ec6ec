#pragma once
// Runs a command of the registry through the one runner, as its dialog or its flags would once
// the options were confirmed: on a data set of the test's own with a scripted platform and an
// output channel, or on a workbench.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/alignment_fixture.h"
#include "core/command_id.h"
#include "core/command_options.h"
#include "output/output_channel.h"
#include "shell/command_registry.h"
#include "shell/command_runner.h"
#include "shell/workbench.h"
#include "support/scripted_platform.h"

namespace ovelt::test {

// Command `id` with `options` on `data`; the report goes to `channel`, the boxes to `ui`.
template <class Options>
RunOutcome RunWith(CommandId id, ActiveData& data, OutputChannel& channel, Platform& ui,
                   const Options& options, bool want_json = false) {
  const CommandEntry* entry = FindEntry(id);
  EXPECT_NE(entry, nullptr) << "no entry for command " << ::ovelt::Number(id);
  if (entry == nullptr) return {};
  EXPECT_TRUE(entry->Built()) << "command " << ::ovelt::Number(id) << " has no binding";
  TypedOptions<Options> typed(options);
  return RunCommand(&data, channel, ui, *entry, typed, want_json);
}

// The same on the open file of a workbench.
template <class Options>
RunOutcome RunWith(CommandId id, Workbench& wb, const Options& options, bool want_json = false) {
  const CommandEntry* entry = FindEntry(id);
  EXPECT_NE(entry, nullptr) << "no entry for command " << ::ovelt::Number(id);
  if (entry == nullptr) return {};
  TypedOptions<Options> typed(options);
  return RunCommand(wb, *entry, typed, want_json);
}

// An alignment with its platform and output channel, and the outcome of the last run.
struct RunBench {
  explicit RunBench(const std::vector<std::string>& rows) : ad(MakeAlignment(rows)) {}

  template <class Options>
  bool Run(CommandId id, const Options& options, bool want_json = false) {
    outcome = RunWith(id, ad, channel, platform, options, want_json);
    return outcome.Stands;
  }
  // The report after its head.
  [[nodiscard]] std::string Body() const {
    return channel.TextBuffer.substr(channel.HeaderBlock.size());
  }

  testing::ScriptedPlatform platform;
  ActiveData ad;
  OutputChannel channel{platform};
  RunOutcome outcome;
};

}  // namespace ovelt::test
