#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/help_menu.h"
#include "ui/qt/help_text.h"
#include "ui/qt/main_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

class ViewerHelp : public ::testing::Test {
 protected:
  ViewerHelp() { p.ProgramDir = dir.Path().string(); }
  // An opener that records what it was asked and answers `opens`.
  UrlOpener Recorder() {
    return [this](const std::string& address) {
      opened.push_back(address);
      return opens;
    };
  }
  TempDir dir;
  ScriptedPlatform p;
  std::vector<std::string> opened;
  bool opens = true;
};

// No manual in the program directory (and none beside the test program): the help is missing.
TEST_F(ViewerHelp, ContentsAndSearchSayTheHelpFileIsMissing) {
  MainWindow window(p);
  AddHelpHandlers(window, Recorder());
  for (const char* handler : {"contenido_Click", "AyudaBuscar_Click"}) {
    p.Boxes.clear();
    ASSERT_TRUE(window.ActionFor(handler)->isEnabled()) << handler;
    window.ActionFor(handler)->trigger();
    ASSERT_EQ(p.Boxes.size(), 1U) << handler;
    EXPECT_EQ(p.Boxes[0].Text,
              "Help file: 'OVELT#2.HLP' not found. Make sure that it is in the same directory as "
              "OVELT#2.EXE");
    EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  }
  EXPECT_TRUE(opened.empty());
}

TEST_F(ViewerHelp, WebCommandsOpenTheBrowserOrSayBrowserError) {
  MainWindow window(p);
  AddHelpHandlers(window, Recorder());
  window.Trigger("WebPage_Click");
  window.Trigger("BugReports_Click");
  EXPECT_EQ(opened, (std::vector<std::string>{kWebPageAddress, kBugReportAddress}));
  EXPECT_TRUE(p.Boxes.empty());
  opens = false;
  window.Trigger("WebPage_Click");
  EXPECT_EQ(p.LastBox(), "Browser Error");
  p.Boxes.clear();
  window.Trigger("BugReports_Click");
  EXPECT_EQ(p.LastBox(), "Browser Error");
}

TEST_F(ViewerHelp, MenuTextsAndCitationWindow) {
  MainWindow window(p);
  AddHelpHandlers(window, Recorder());
  EXPECT_EQ(window.ActionFor("contenido_Click")->text(), "&Contents");
  EXPECT_EQ(window.ActionFor("AyudaBuscar_Click")->text(), "Search for &Help on...");
  EXPECT_EQ(window.ActionFor("BugReports_Click")->text(), "Ovelt Bug Reports");
  EXPECT_EQ(window.ActionFor("Citation_Click")->text(), "C&itation");
  EXPECT_EQ(window.ActionFor("WebPage_Click")->text(), "&Ovelt Web Page");
  EXPECT_EQ(window.ActionFor("About_Click")->text(), "&About Ovelt");
  for (const char* h : {"contenido_Click", "AyudaBuscar_Click", "BugReports_Click",
                        "Citation_Click", "WebPage_Click", "About_Click"})
    EXPECT_TRUE(window.ActionFor(h)->isVisible()) << h;
  QString shown;
  QTimer::singleShot(0, [&shown] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), "Citation");
    shown = dialog->findChild<QLabel*>()->text();
    dialog->reject();
  });
  window.Trigger("Citation_Click");
  EXPECT_EQ(shown.toStdString(), CitationText());
  EXPECT_NE(shown.indexOf("Ver. 4.00.5"), -1);
}

}  // namespace
}  // namespace ovelt
