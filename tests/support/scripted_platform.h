#pragma once
// A Platform for tests: answers come from queues, every box, status text and gauge value is
// recorded, and the clock stands still at a date the test chooses.

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace ovelt::testing {

struct RecordedBox {
  std::string Text;
  MsgIcon Icon = MsgIcon::kNone;
  MsgButtons Buttons = MsgButtons::kOk;
  std::string Title;
  bool DefaultSecond = false;
};

struct RecordedSaveDialog {
  std::string Title;
  std::string Filter;
  std::string DefaultName;
};

class ScriptedPlatform : public Platform {
 public:
  // Answers of the next question boxes, in order; an OK box with nothing queued answers kOk, a
  // question with nothing queued answers kNo (OK/Cancel: kCancel).
  std::deque<MsgAnswer> Answers;
  // Names the next open and save dialogs return; nullopt is Cancel. Empty queue: Cancel.
  std::deque<std::optional<std::string>> OpenNames;
  std::deque<std::optional<std::string>> SaveNames;
  // Answers of the MEGA dialog; with nothing queued: `Mega` (nullopt is Cancel).
  std::deque<std::optional<MegaOptions>> MegaAnswers;
  std::optional<MegaOptions> Mega = MegaOptions{};
  // Runs when the logic opens one of the program's dialogs; returns the dialog's OK.
  std::function<bool(const std::string&)> OnDialog;
  DateTime Clock{2004, 3, 5, 14, 5, 9};
  std::string ProgramDir;
  std::string ConfigDir;

  std::vector<RecordedBox> Boxes;
  std::vector<RecordedSaveDialog> SaveDialogs;
  std::vector<std::string> OpenDialogs;
  std::vector<std::string> MegaQuestions;  // file names shown in the MEGA dialog
  std::vector<std::string> DialogsShown;
  std::vector<std::string> StatusTexts;
  std::vector<int> ProgressValues;
  std::vector<std::string> WindowTitles;

  MsgAnswer MessageBox(const std::string& text, MsgIcon icon, MsgButtons buttons,
                       const std::string& title, bool default_second) override {
    Boxes.push_back({text, icon, buttons, title, default_second});
    if (!Answers.empty()) {
      const MsgAnswer answer = Answers.front();
      Answers.pop_front();
      return answer;
    }
    switch (buttons) {
      case MsgButtons::kOk: return MsgAnswer::kOk;
      case MsgButtons::kOkCancel: return MsgAnswer::kCancel;
      case MsgButtons::kYesNo: return MsgAnswer::kNo;
    }
    return MsgAnswer::kNo;
  }

  std::optional<std::string> OpenFileName(const std::string& title,
                                          const std::string& filter) override {
    OpenDialogs.push_back(title + "|" + filter);
    if (OpenNames.empty()) return std::nullopt;
    auto name = OpenNames.front();
    OpenNames.pop_front();
    return name;
  }

  std::optional<std::string> SaveFileName(const std::string& title, const std::string& filter,
                                          const std::string& default_name) override {
    SaveDialogs.push_back({title, filter, default_name});
    if (SaveNames.empty()) return std::nullopt;
    auto name = SaveNames.front();
    SaveNames.pop_front();
    return name;
  }

  bool ShowDialog(const std::string& form_name) override {
    DialogsShown.push_back(form_name);
    return OnDialog ? OnDialog(form_name) : false;
  }

  std::optional<MegaOptions> AskMegaOptions(const std::string& file_name) override {
    MegaQuestions.push_back(file_name);
    if (!MegaAnswers.empty()) {
      auto answer = MegaAnswers.front();
      MegaAnswers.pop_front();
      return answer;
    }
    return Mega;
  }

  void SetStatusText(const std::string& text) override { StatusTexts.push_back(text); }
  void SetProgress(int percent) override { ProgressValues.push_back(percent); }
  void SetWindowTitle(const std::string& title) override { WindowTitles.push_back(title); }
  DateTime Now() override { return Clock; }
  std::string ProgramDirectory() override { return ProgramDir; }
  std::string ConfigDirectory() override { return ConfigDir; }

  [[nodiscard]] const std::string& LastBox() const {
    static const std::string none;
    return Boxes.empty() ? none : Boxes.back().Text;
  }
};

}  // namespace ovelt::testing
