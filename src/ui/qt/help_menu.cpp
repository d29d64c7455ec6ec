#include "ui/qt/help_menu.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>

#include "shell/manual.h"
#include "ui/qt/help_text.h"
#include "ui/qt/help_window.h"
#include "ui/qt/main_window.h"

namespace ovelt {

namespace {

// Contents and Search open the one help window of the main window; without a manual they say
// that the help is missing.
void OpenManual(MainWindow& window, QPointer<HelpWindow>& help, bool search) {
  Platform& ui = window.Bench().Ui();
  const auto root = FindManual(DesktopProgramDirectories(ui.ProgramDirectory()));
  if (!root) {
    ui.MessageBox(kHelpFileMissing, MsgIcon::kCritical);
    return;
  }
  if (help.isNull()) help = new HelpWindow(*root, &window);
  if (!search) help->ShowPage("index");
  if (help->CurrentPage().empty()) help->ShowPage("index");
  help->show();
  help->raise();
  help->activateWindow();
  if (search) help->FocusSearch();
}

void OpenPage(MainWindow& window, const UrlOpener& opener, const std::string& address) {
  if (!opener(address)) window.Bench().Ui().MessageBox(kBrowserError, MsgIcon::kCritical);
}

void ShowCitation(MainWindow& window) {
  QDialog dialog(&window);
  dialog.setWindowTitle(kCitationTitle);
  auto* text = new QLabel(QString::fromStdString(CitationText()));
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(text);
  layout->addWidget(buttons);
  dialog.resize(460, 150);
  dialog.exec();
}

}  // namespace

bool OpenWithSystem(const std::string& address) {
  return QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

void AddHelpHandlers(MainWindow& window, UrlOpener opener) {
  auto help = std::make_shared<QPointer<HelpWindow>>();
  window.AddHandler("contenido_Click", [&window, help] { OpenManual(window, *help, false); });
  window.AddHandler("AyudaBuscar_Click", [&window, help] { OpenManual(window, *help, true); });
  window.AddHandler("BugReports_Click",
                    [&window, opener] { OpenPage(window, opener, kBugReportAddress); });
  window.AddHandler("WebPage_Click",
                    [&window, opener] { OpenPage(window, opener, kWebPageAddress); });
  window.AddHandler("Citation_Click", [&window] { ShowCitation(window); });
}

}  // namespace ovelt
