#pragma once
// The window layer of the desktop: Qt message boxes and file dialogs, the status line and the
// progress bar of the main window.

#include <QPointer>

#include <functional>
#include <string>

#include "platform/platform.h"

class QLabel;
class QProgressBar;
class QWidget;

namespace ovelt {

class QtPlatform : public Platform {
 public:
  QtPlatform() = default;

  // The main window's widgets, once it exists.
  void Attach(QWidget* parent, QLabel* status, QProgressBar* gauge);
  // Who opens the program's dialogs by their form names (the main window).
  void SetDialogs(std::function<bool(const std::string&)> open) { dialogs_ = std::move(open); }

  MsgAnswer MessageBox(const std::string& text, MsgIcon icon, MsgButtons buttons,
                       const std::string& title, bool default_second) override;
  std::optional<std::string> OpenFileName(const std::string& title,
                                          const std::string& filter) override;
  std::optional<std::string> SaveFileName(const std::string& title, const std::string& filter,
                                          const std::string& default_name) override;
  // A refusal's Yes ("Do you want to define them?"): the dialog that defines what is missing.
  bool ShowDialog(const std::string& form_name) override;
  std::optional<MegaOptions> AskMegaOptions(const std::string& file_name) override;
  void SetStatusText(const std::string& text) override;
  void SetProgress(int percent) override;
  void SetWindowTitle(const std::string& title) override;
  DateTime Now() override;
  std::string ProgramDirectory() override;
  std::string ConfigDirectory() override;

 private:
  QPointer<QWidget> parent_;
  QPointer<QLabel> status_;
  QPointer<QProgressBar> gauge_;
  std::function<bool(const std::string&)> dialogs_;
};

// "All Data Files|*.fas;*.meg|FASTA Files (*.fas)|*.fas" -> the filter list of a Qt dialog.
[[nodiscard]] QString QtFilterFrom(const std::string& filter);

}  // namespace ovelt
