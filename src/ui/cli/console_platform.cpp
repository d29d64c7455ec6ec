#include "ui/cli/console_platform.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "ui/cli/definition_flags.h"

namespace ovelt {

ConsolePlatform::ConsolePlatform(std::ostream& err) : err_(err) {}

MsgAnswer ConsolePlatform::MessageBox(const std::string& text, MsgIcon icon, MsgButtons buttons,
                                      const std::string& title, bool /*default_second*/) {
  ++boxes_shown;
  if (icon == MsgIcon::kWarning || icon == MsgIcon::kCritical) warned = true;
  err_ << title << ":\n" << text << "\n";
  MsgAnswer answer = MsgAnswer::kOk;
  switch (buttons) {
    case MsgButtons::kOk:
      answer = MsgAnswer::kOk;
      break;
    case MsgButtons::kOkCancel:
      // A notice with OK/Cancel goes on; questions whose OK changes data come through
      // AskBeforeChange.
      answer = MsgAnswer::kOk;
      err_ << "(answered OK)\n";
      break;
    case MsgButtons::kYesNo:
      answer = answer_yes ? MsgAnswer::kYes : MsgAnswer::kNo;
      err_ << (answer_yes ? "(answered Yes)\n" : "(answered No; --yes answers Yes)\n");
      break;
  }
  err_.flush();
  return answer;
}

MsgAnswer ConsolePlatform::AskBeforeChange(const std::string& text, MsgIcon, const std::string& title) {
  ++boxes_shown;
  err_ << title << ":\n" << text << "\n";
  err_ << (answer_yes ? "(answered OK)\n" : "(answered Cancel; add --yes to answer OK)\n");
  err_.flush();
  return answer_yes ? MsgAnswer::kOk : MsgAnswer::kCancel;
}

void ConsolePlatform::ExplainRefusal(const std::string& reason) {
  if (reason.empty()) return;
  err_ << reason << "\n";
  err_.flush();
}

void ConsolePlatform::DefinitionMissing(const std::string& form_name) {
  const std::string line = DefinitionFlagsLine(form_name, set_flags);
  if (line.empty()) return;
  err_ << line << "\n";
  err_.flush();
}

std::optional<std::string> ConsolePlatform::OpenFileName(const std::string&, const std::string&) {
  return std::nullopt;  // files are named on the command line
}

std::optional<std::string> ConsolePlatform::SaveFileName(const std::string&, const std::string&,
                                                         const std::string&) {
  std::optional<std::string> name = save_name;
  save_name.reset();
  return name;
}

std::optional<MegaOptions> ConsolePlatform::AskMegaOptions(const std::string&) { return mega; }

void ConsolePlatform::SetStatusText(const std::string& text) {
  if (show_status) err_ << text << "\n";
}

void ConsolePlatform::SetProgress(int) {}

Platform::DateTime ConsolePlatform::Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

std::string ExecutableDirectory() {
  std::error_code ec;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  return ec ? std::string() : exe.parent_path().string();
}

std::string ConsolePlatform::ProgramDirectory() {
  if (const char* home = std::getenv("OVELT_HOME")) return home;
  return ExecutableDirectory();
}

std::string ConsolePlatform::ConfigDirectory() {
  if (const char* home = std::getenv("OVELT_HOME")) return home;
  if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg)
    return (std::filesystem::path(xdg) / "ovelt").string();
  if (const char* user_home = std::getenv("HOME"); user_home && *user_home)
    return (std::filesystem::path(user_home) / ".config" / "ovelt").string();
  return "";
}

}  // namespace ovelt
