#pragma once
// The window layer of the command line: message boxes go to standard error under the title,
// questions are answered by flags (--yes), file dialogs are replaced by arguments, and the
// status line is shown on standard error only when asked for.

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace ovelt {

// The folder of the running executable (not overridden by OVELT_HOME); "" if unknown.
[[nodiscard]] std::string ExecutableDirectory();

class ConsolePlatform : public Platform {
 public:
  explicit ConsolePlatform(std::ostream& err);

  MsgAnswer MessageBox(const std::string& text, MsgIcon icon, MsgButtons buttons,
                       const std::string& title, bool default_second) override;
  // Cancel unless --yes was given: nothing of the user's is changed without consent.
  MsgAnswer AskBeforeChange(const std::string& text, MsgIcon icon,
                            const std::string& title) override;
  void ExplainRefusal(const std::string& reason) override;
  // The flags that give what the refused command lacked (DefinitionFlagsLine).
  void DefinitionMissing(const std::string& form_name) override;
  std::optional<std::string> OpenFileName(const std::string& title,
                                          const std::string& filter) override;
  std::optional<std::string> SaveFileName(const std::string& title, const std::string& filter,
                                          const std::string& default_name) override;
  std::optional<MegaOptions> AskMegaOptions(const std::string& file_name) override;
  void SetStatusText(const std::string& text) override;
  void SetProgress(int percent) override;
  DateTime Now() override;
  std::string ProgramDirectory() override;
  std::string ConfigDirectory() override;

  // Answers of the flags.
  bool answer_yes = false;
  bool show_status = false;
  MegaOptions mega;
  // The next save dialog returns this name (the --out/--session file); consumed once.
  std::optional<std::string> save_name;

  // The sequence-set flags of the command being run ("set", "outgroup"), for
  // DefinitionMissing.
  std::vector<std::string> set_flags;

  // How many boxes were shown, and whether one of them was a warning or error.
  int boxes_shown = 0;
  bool warned = false;

 private:
  std::ostream& err_;
};

}  // namespace ovelt
