#include <gtest/gtest.h>

#include <QAction>
#include <QToolBar>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/data_viewer_handlers.h"
#include "ui/qt/main_window.h"
#include "ui/qt/tool_bar.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

const std::string kExample = std::string(OVELT_TEST_DATA) + "/../../examples/example.fas";

QToolBar* Bar(MainWindow& window) { return window.findChild<QToolBar*>("SSCommand1"); }

QAction* Button(MainWindow& window, const std::string& handler) {
  for (QAction* a : Bar(window)->actions())
    if (a->objectName().toStdString() == handler) return a;
  return nullptr;
}

TEST(ViewerToolBar, TwelveButtonsInOrder) {
  ScriptedPlatform p;
  MainWindow window(p);
  ASSERT_NE(Bar(window), nullptr);
  const QList<QAction*> buttons = Bar(window)->actions();
  ASSERT_EQ(buttons.size(), 12);
  const char* labels[] = {"Data Information", "Open Data File", "Show Graph", "Print Output",
                          "Save Current Output", "Display Data", "Close Data File",
                          "Include/Exclude Sequences", "Calculator", "Coalescent Simulations",
                          "Define Sequence Sets", ""};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(buttons[i]->text().toStdString(), labels[i]) << i;
}

// Each button's tip names it and the menu command it runs, as that command reads now.
TEST(ViewerToolBar, TipsNameTheButtonAndItsMenuCommand) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  EXPECT_EQ(Button(window, "DataInformacion_Click")->toolTip(),
            "Data Information (Display > Data Info)");
  EXPECT_EQ(Button(window, "verf1_Click")->toolTip(), "Display Data (Display > View Data)");
  EXPECT_EQ(Button(window, "leer_Click")->toolTip(), "Open Data File (File > Open Data File...)");
  // The help button has no label: its command alone.
  EXPECT_EQ(Button(window, "contenido_Click")->toolTip(), "Help > Contents");
  for (const ToolButtonEntry& entry : kToolButtons) {
    const QString tip = Button(window, entry.Handler)->toolTip();
    EXPECT_FALSE(tip.isEmpty()) << entry.Handler;
    EXPECT_EQ(Button(window, entry.Handler)->statusTip(), tip) << entry.Handler;
  }
  // A command whose words change takes its button's tip along.
  window.Bench().Menus().SetText("salvar_Click", "Save Graph...");
  window.Refresh();
  EXPECT_EQ(Button(window, "salvar_Click")->toolTip(), "Save Current Output (File > Save Graph...)");
}

TEST(ViewerToolBar, VisibleWhenBuiltEnabledWithTheirMenuEntry) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  // Every button shows exactly when its handler is registered.
  for (const ToolButtonEntry& entry : kToolButtons)
    EXPECT_EQ(Button(window, entry.Handler)->isVisible(), window.HasHandler(entry.Handler))
        << entry.Handler;
  for (const char* built : {"DataInformacion_Click", "leer_Click", "printout_Click",
                            "salvar_Click", "verf1_Click", "del_Click", "MenuIncluirSeqs_Click",
                            "contenido_Click"})
    EXPECT_TRUE(Button(window, built)->isVisible()) << built;

  // No file: open and help on; the data commands off.
  EXPECT_TRUE(Button(window, "leer_Click")->isEnabled());
  EXPECT_TRUE(Button(window, "contenido_Click")->isEnabled());
  for (const char* off : {"DataInformacion_Click", "printout_Click", "salvar_Click",
                          "verf1_Click", "del_Click", "MenuIncluirSeqs_Click"})
    EXPECT_FALSE(Button(window, off)->isEnabled()) << off;

  p.OpenNames.push_back(kExample);
  Button(window, "leer_Click")->trigger();
  ASSERT_TRUE(window.Bench().FileOpen());
  EXPECT_FALSE(Button(window, "leer_Click")->isEnabled());
  for (const char* on : {"DataInformacion_Click", "verf1_Click", "del_Click",
                         "MenuIncluirSeqs_Click", "contenido_Click"})
    EXPECT_TRUE(Button(window, on)->isEnabled()) << on;
  // Nothing stands in the output yet: neither print nor save.
  EXPECT_FALSE(Button(window, "printout_Click")->isEnabled());
  EXPECT_FALSE(Button(window, "salvar_Click")->isEnabled());

  // A button runs its command: Display Data opens the viewer.
  Button(window, "verf1_Click")->trigger();
  EXPECT_NE(OpenDataViewer(window), nullptr);
}

TEST(ViewerToolBar, ADisabledButtonDoesNothing) {
  ScriptedPlatform p;
  MainWindow window(p);
  bool ran = false;
  window.AddHandler("verf1_Click", [&ran] { ran = true; });
  ASSERT_FALSE(window.Bench().Menus().Enabled("verf1_Click"));
  // Even when triggered directly, as a shortcut would.
  Button(window, "verf1_Click")->setEnabled(true);
  Button(window, "verf1_Click")->trigger();
  EXPECT_FALSE(ran);
}

TEST(ViewerToolBar, AButtonAppearsWhenItsHandlerIsRegistered) {
  ScriptedPlatform p;
  MainWindow window(p);
  const bool before = window.HasHandler("MenuGeneCoal_Click");
  EXPECT_EQ(Button(window, "MenuGeneCoal_Click")->isVisible(), before);
  window.AddHandler("MenuGeneCoal_Click", [] {});
  window.Refresh();
  EXPECT_TRUE(Button(window, "MenuGeneCoal_Click")->isVisible());
}

}  // namespace
}  // namespace ovelt
