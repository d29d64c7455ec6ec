#pragma once
// The window layer as the logic sees it. The logic never pops a window of its own: it asks the
// Platform. Implementations: the desktop one (Qt), the console one (messages to standard
// error, questions answered by flags) and a scripted one for tests.
//
// This header is a pure interface with no dependencies, so that every layer of the library may
// talk to the user through it without depending on any window system.

#include <optional>
#include <string>
#include <vector>

namespace ovelt {

enum class MsgIcon { kNone, kInformation, kWarning, kCritical, kQuestion };
enum class MsgButtons { kOk, kOkCancel, kYesNo };
enum class MsgAnswer { kOk, kCancel, kYes, kNo };

// Answers of the "MEGA Data File" dialog.
struct MegaOptions {
  int Layout = 0;  // 0 sequential, 1 interleaved
  char MatchSymbol = '.';
  char GapSymbol = '-';
  char MissingSymbol = '?';
};

class Platform {
 public:
  virtual ~Platform() = default;

  // A modal box. `text` uses "\n" between lines. `default_second` makes the second button the
  // default one. Every box of the system has the title "Ovelt".
  virtual MsgAnswer MessageBox(const std::string& text, MsgIcon icon = MsgIcon::kNone,
                               MsgButtons buttons = MsgButtons::kOk,
                               const std::string& title = "Ovelt",
                               bool default_second = false) = 0;

  // A question whose OK changes or loses the user's data: a file rewritten, sequences left out
  // of it, a doubtful setting taken. The box is the OK/Cancel box above; a face that cannot ask
  // (the command line) answers Cancel unless the user agreed beforehand.
  virtual MsgAnswer AskBeforeChange(const std::string& text, MsgIcon icon,
                                    const std::string& title = "Ovelt") {
    return MessageBox(text, icon, MsgButtons::kOkCancel, title);
  }

  // Why the refusal just shown was made, for a face whose user does not see the dialog's
  // fields: the command line prints it on the line under the box. A window shows the fields,
  // and the box keeps its own words.
  virtual void ExplainRefusal(const std::string& /*reason*/) {}

  // File dialogs; nullopt when cancelled.
  virtual std::optional<std::string> OpenFileName(const std::string& title,
                                                  const std::string& filter) = 0;
  virtual std::optional<std::string> SaveFileName(const std::string& title,
                                                  const std::string& filter,
                                                  const std::string& default_name) = 0;

  // Opens one of the program's own dialogs by its form name ("dlgDefPop", "Form14", ...) when a
  // refusal offers to define what is missing. True when the user confirmed it. A face without
  // such dialogs (the command line) answers false.
  virtual bool ShowDialog(const std::string& /*form_name*/) { return false; }

  // A check before a command stopped it for want of what the dialog `form_name` defines (no
  // sequence sets, no coding region, ...), whatever the answer to its question was. The command
  // line names the flags that define it; a window has offered the dialog already.
  virtual void DefinitionMissing(const std::string& /*form_name*/) {}

  // The "MEGA Data File" dialog; nullopt is Cancel.
  virtual std::optional<MegaOptions> AskMegaOptions(const std::string& file_name) = 0;

  // Status line and progress gauge.
  virtual void SetStatusText(const std::string& text) = 0;
  // Progress gauge in percent; a negative value hides it.
  virtual void SetProgress(int percent) = 0;
  virtual void SetWindowTitle(const std::string& /*title*/) {}

  // "dd/mm/yy" style parts of the current local date and time.
  struct DateTime {
    int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
  };
  virtual DateTime Now() = 0;

  // The program's own directory and the user's configuration directory ("" when unknown).
  virtual std::string ProgramDirectory() = 0;
  virtual std::string ConfigDirectory() = 0;
};

}  // namespace ovelt
