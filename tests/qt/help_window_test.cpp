#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>

#include <filesystem>

#include "shell/manual.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/help_menu.h"
#include "ui/qt/help_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/option_dialog.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

// A program directory that holds the manual of this source tree as `manual`.
class HelpWindowTest : public ::testing::Test {
 protected:
  HelpWindowTest() {
    std::filesystem::create_directory_symlink(OVELT_MANUAL_SOURCE, dir.Path() / "manual");
    p.ProgramDir = dir.Path().string();
  }
  TempDir dir;
  ScriptedPlatform p;
};

void SendF1(QWidget* widget) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
  QApplication::sendEvent(widget, &press);
}

TEST_F(HelpWindowTest, ContentsOpensTheIndexWithEveryPageListed) {
  MainWindow window(p);
  AddHelpHandlers(window, [](const std::string&) { return true; });
  window.Trigger("contenido_Click");
  EXPECT_TRUE(p.Boxes.empty());
  auto* help = window.findChild<HelpWindow*>();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_EQ(help->CurrentPage(), "index");
  EXPECT_TRUE(help->Browser()->toPlainText().contains("Ovelt Workbench manual"));
  // The Markdown is rendered, not shown as source: no "# " and no link syntax.
  EXPECT_FALSE(help->Browser()->toPlainText().contains("# Ovelt"));
  EXPECT_FALSE(help->Browser()->toPlainText().contains("](commands/"));
  const auto pages = Manual(OVELT_MANUAL_SOURCE).Pages();
  ASSERT_EQ(help->Contents()->count(), static_cast<int>(pages.size()));
  EXPECT_EQ(help->Contents()->item(0)->text(), "Ovelt Workbench manual");

  // A link of the index leads to its page, and Back returns.
  help->Browser()->setSource(QUrl("commands/tajima.md"));
  EXPECT_EQ(help->CurrentPage(), "commands/tajima");
  EXPECT_TRUE(help->Browser()->toPlainText().contains("D = (k − S/a1) / sqrt(e1 S + e2 S (S − 1))"));
  EXPECT_FALSE(help->Browser()->toPlainText().contains("## What it computes"));
  // From a page in commands/, a link up to the index and on to a topic.
  help->Browser()->setSource(QUrl("../topics/gaps.md"));
  EXPECT_EQ(help->CurrentPage(), "topics/gaps");
  EXPECT_TRUE(help->Browser()->toPlainText().contains("Gaps in sliding windows"));
  help->BackButton()->click();
  EXPECT_EQ(help->CurrentPage(), "commands/tajima");
  ASSERT_TRUE(help->BackButton()->isEnabled());
  help->BackButton()->click();
  EXPECT_EQ(help->CurrentPage(), "index");
  EXPECT_TRUE(help->ForwardButton()->isEnabled());

  // Contents again reuses the one window.
  window.Trigger("contenido_Click");
  EXPECT_EQ(window.findChildren<HelpWindow*>().size(), 1);
}

TEST_F(HelpWindowTest, SearchListsThePagesThatHoldTheWords) {
  MainWindow window(p);
  AddHelpHandlers(window, [](const std::string&) { return true; });
  window.Trigger("AyudaBuscar_Click");
  auto* help = window.findChild<HelpWindow*>();
  ASSERT_NE(help, nullptr);
  EXPECT_EQ(help->CurrentPage(), "index");
  help->SearchField()->setText("Strobeck Ewens");
  QStringList found;
  for (int row = 0; row < help->Results()->count(); ++row)
    found << help->Results()->item(row)->text();
  EXPECT_TRUE(found.contains("Fu and Li's Tests")) << found.join("|").toStdString();
  EXPECT_TRUE(found.contains("Discrete Distributions")) << found.join("|").toStdString();
  EXPECT_FALSE(found.contains("Tests of Independence: 2 x 2 table"));
  // A result opens its page.
  const int row = static_cast<int>(found.indexOf("Discrete Distributions"));
  emit help->Results()->itemActivated(help->Results()->item(row));
  EXPECT_EQ(help->CurrentPage(), "commands/distributions");
}

TEST_F(HelpWindowTest, F1InTheDialogOfACommandOpensItsPage) {
  MainWindow window(p);
  const std::string file = dir.Write(
      "four.fas", ">a\nACGTACGTAC\n>b\nACGTACGTAA\n>c\nATGTACGTAC\n>d\nACGTACCTAC\n");
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  std::string shown;
  bool visible = false;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    SendF1(dialog);
    auto* help = dialog->findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    shown = help->CurrentPage();
    visible = help->isVisible();
    dialog->reject();
  });
  window.Trigger("MenuTajimaTest_Click");
  EXPECT_EQ(shown, "commands/tajima");
  EXPECT_TRUE(visible);
  EXPECT_TRUE(p.Boxes.empty());
}

TEST_F(HelpWindowTest, F1InAToolWindowOpensItsPage) {
  MainWindow window(p);
  std::string shown;
  QTimer::singleShot(0, [&] {
    QWidget* tool = QApplication::activeModalWidget();
    ASSERT_NE(tool, nullptr);
    SendF1(tool);
    auto* help = tool->findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    shown = help->CurrentPage();
    qobject_cast<QDialog*>(tool)->reject();
  });
  window.Trigger("MenuIndependence_Click");
  EXPECT_EQ(shown, "commands/independence");
}

TEST(HelpWithoutManual, F1SaysTheHelpIsMissing) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  QDialog dialog;
  AttachHelpKey(&dialog, p, "tajima");
  SendF1(&dialog);
  ASSERT_EQ(p.Boxes.size(), 1U);
  EXPECT_EQ(p.Boxes[0].Text,
            "Help file: 'OVELT#2.HLP' not found. Make sure that it is in the same directory as "
            "OVELT#2.EXE");
  EXPECT_EQ(dialog.findChild<HelpWindow*>(), nullptr);
}

}  // namespace
}  // namespace ovelt
