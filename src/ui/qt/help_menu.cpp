#include "ui/qt/help_menu.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QUrl>
#include <QVBoxLayout>

#include <filesystem>

#include "ui/qt/help_text.h"
#include "ui/qt/main_window.h"

namespace ovelt {

namespace {

void OpenHelpFile(MainWindow& window, const UrlOpener& opener) {
  Platform& ui = window.Bench().Ui();
  const std::filesystem::path file =
      std::filesystem::path(ui.ProgramDirectory()) / kHelpFileName;
  std::error_code error;
  if (!ui.ProgramDirectory().empty() && std::filesystem::is_regular_file(file, error)) {
    if (opener(QUrl::fromLocalFile(QString::fromStdString(file.string())).toString().toStdString()))
      return;
  }
  ui.MessageBox(kHelpFileMissing, MsgIcon::kCritical);
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
  window.AddHandler("contenido_Click", [&window, opener] { OpenHelpFile(window, opener); });
  window.AddHandler("AyudaBuscar_Click", [&window, opener] { OpenHelpFile(window, opener); });
  window.AddHandler("BugReports_Click",
                    [&window, opener] { OpenPage(window, opener, kBugReportAddress); });
  window.AddHandler("WebPage_Click",
                    [&window, opener] { OpenPage(window, opener, kWebPageAddress); });
  window.AddHandler("Citation_Click", [&window] { ShowCitation(window); });
}

}  // namespace ovelt
