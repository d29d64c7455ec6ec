// A session on the bundled example as a user runs it: open the file, DNA Polymorphism, a
// sliding window with its graph, the data viewer, a second analysis, a torn-off report and a
// third analysis, the manual. Each new result must be the window in front, with the focus.
// When OVELT_SHOTS names a directory the pictures of the session are written there
// (session_<step>.png): under a real X server the whole screen, floating windows included.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSettings>
#include <QTimer>

#include <cstdlib>
#include <string>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/data_info_window.h"
#include "ui/qt/data_viewer_handlers.h"
#include "ui/qt/data_viewer_window.h"
#include "ui/qt/graph_handlers.h"
#include "ui/qt/graph_window.h"
#include "ui/qt/grid_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/option_dialog.h"
#include "ui/qt/text_window.h"
#include "ui/qt/workspace.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

// Accepts the next option dialog, with a sliding window of `window` sites and step `step` when
// they are given.
void AcceptNextOptions(int window = 0, int step = 0) {
  QTimer::singleShot(0, [window, step] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    if (window > 0) {
      for (auto* box : dialog->findChildren<QCheckBox*>())
        if (box->text() == "Sliding Window") box->setChecked(true);
      for (auto* edit : dialog->findChildren<QLineEdit*>()) {
        if (edit->objectName() == "window") edit->setText(QString::number(window));
        if (edit->objectName() == "step") edit->setText(QString::number(step));
      }
    }
    dialog->accept();
  });
}

bool Within(const QWidget* widget, const QWidget* container) {
  return widget != nullptr && (widget == container || container->isAncestorOf(widget));
}

class WorkspaceSession : public ::testing::Test {
 protected:
  void SetUp() override {
    if (const char* shots = std::getenv("OVELT_SHOTS")) shots_ = shots;
    p.ProgramDir = dir.Path().string();
  }

  // `content` is the window in front: its tab is the current one (or its floating window is
  // up), the workspace names it current, and the focus is in it.
  static void ExpectInFront(MainWindow& window, QWidget* content, const char* step) {
    QApplication::processEvents();
    ASSERT_NE(content, nullptr) << step;
    QDockWidget* dock = window.Work().DockOf(content);
    ASSERT_NE(dock, nullptr) << step;
    EXPECT_EQ(window.Work().Current(), content) << step;
    EXPECT_TRUE(dock->isVisible()) << step;
    // A tab behind another is laid out of sight: nothing of it can be seen.
    EXPECT_FALSE(dock->visibleRegion().isEmpty()) << step;
    EXPECT_TRUE(Within(dock->window()->focusWidget(), content)) << step;
    if (QGuiApplication::platformName() == "xcb") {
      EXPECT_EQ(QApplication::activeWindow(), dock->window()) << step;
    }
  }

  // The screen as the user sees it under a real X server; the main window elsewhere.
  void Shot(MainWindow& window, const std::string& step) {
    if (shots_.empty()) return;
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
    const QString path = QString::fromStdString(shots_ + "/session_" + step + ".png");
    QPixmap picture;
    if (QGuiApplication::platformName() == "xcb" && window.screen() != nullptr)
      picture = window.screen()->grabWindow(0);
    if (picture.isNull()) picture = window.grab();
    EXPECT_TRUE(picture.save(path)) << path.toStdString();
  }

  TempDir dir;
  ScriptedPlatform p;
  std::string shots_;
};

TEST_F(WorkspaceSession, EachNewResultComesToTheFront) {
  QSettings layout(QString::fromStdString(dir.File("layout.ini")), QSettings::IniFormat);
  MainWindow window(p);
  window.RememberLayout(layout);
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  // Nothing open: the frame with the version fills the middle.
  auto* frame = window.findChild<QLabel*>("versionFrame");
  ASSERT_NE(frame, nullptr);
  EXPECT_TRUE(frame->isVisible());
  EXPECT_EQ(window.Work().Current(), nullptr);
  Shot(window, "1_start");

  ASSERT_TRUE(window.Bench().OpenPath(OVELT_EXAMPLES "/example.fas"));
  window.Refresh();
  // The Data Information grid, every row in sight.
  QTimer::singleShot(0, [this, &window] {
    auto* info = qobject_cast<DataInfoWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(info, nullptr);
    Shot(window, "1b_data_information");
    info->reject();
  });
  window.Trigger("DataInformacion_Click");
  AcceptNextOptions();
  window.ActionFor("MenuDnaPol_Click")->trigger();
  ExpectInFront(window, window.Text(), "DNA Polymorphism");
  EXPECT_TRUE(window.Text()->Report().contains("example.fas"));
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(window.Work().DockOf(window.Text())->windowTitle(), window.Text()->windowTitle());
  Shot(window, "2_dna_polymorphism");

  // Along a sliding window: the report in front, its table in a tab beside it; then its graph.
  AcceptNextOptions(100, 25);
  window.ActionFor("MenuDnaPol_Click")->trigger();
  ExpectInFront(window, window.Text(), "sliding window");
  EXPECT_TRUE(window.Shows(window.Grid()));
  EXPECT_EQ(window.Work().DockOf(window.Grid())->windowTitle(),
            "Output. Table of: DNA Polymorphism");
  window.Trigger("grafics_Click");
  GraphWindow* graph = FindGraphWindow(window);
  ExpectInFront(window, graph, "graph");
  EXPECT_EQ(window.Work().DockOf(graph)->windowTitle(), "GRAPH");
  EXPECT_TRUE(GraphHasFocus(window));
  EXPECT_EQ(window.ActionFor("salvar_Click")->text(), "Save Graph...");
  Shot(window, "3_sliding_window_graph");

  window.Trigger("verf1_Click");
  ExpectInFront(window, OpenDataViewer(window), "data viewer");
  EXPECT_EQ(window.Work().DockOf(OpenDataViewer(window))->windowTitle(),
            "Display Data of: example.fas");
  // Another window took the focus: the File menu acts on the output again.
  EXPECT_FALSE(GraphHasFocus(window));
  Shot(window, "4_data_viewer");

  // A second analysis: its report comes in front of the viewer, which stays open behind it.
  AcceptNextOptions();
  window.ActionFor("MenuTajimaTest_Click")->trigger();
  ExpectInFront(window, window.Text(), "Tajima's test");
  EXPECT_TRUE(window.Shows(OpenDataViewer(window)));
  EXPECT_FALSE(window.Shows(graph));  // no chart of this run
  Shot(window, "5_second_analysis");

  // The report torn off into a window of its own; the next result raises it there.
  QDockWidget* text_dock = window.Work().DockOf(window.Text());
  text_dock->setFloating(true);
  text_dock->resize(700, 500);
  window.Trigger("verf1_Click");
  ExpectInFront(window, OpenDataViewer(window), "viewer again");
  AcceptNextOptions();
  window.ActionFor("MenuFuLi_Click")->trigger();
  ExpectInFront(window, window.Text(), "Fu and Li's tests, torn off");
  EXPECT_TRUE(text_dock->isFloating());
  Shot(window, "6_torn_off_report");

  // The manual: the Help menu's Contents.
  window.Trigger("contenido_Click");
  Shot(window, "7_manual");
  for (QWidget* top : QApplication::topLevelWidgets())
    if (top->isVisible() && top != &window && top != text_dock && top->isWindow())
      if (!qobject_cast<QDockWidget*>(top)) top->close();

  // Leaving saves the layout: the next start finds the report where the user put it.
  const QRect geometry = window.geometry();
  p.Answers.push_back(MsgAnswer::kYes);  // "Exit Ovelt ?"
  EXPECT_TRUE(window.close());
  MainWindow next(p);
  next.RememberLayout(layout);
  EXPECT_EQ(next.size(), geometry.size());
  EXPECT_TRUE(next.Work().DockOf(next.Text())->isFloating());
  EXPECT_FALSE(next.Shows(next.Text()));  // nothing is open before a file is
}

TEST(WorkspaceGeometry, TheFirstStartTakesMostOfTheScreen) {
  const QRect screen(0, 24, 1920, 1056);
  const QRect first = FirstStartGeometry(screen);
  EXPECT_EQ(first.size(), QSize(1728, 950));
  EXPECT_TRUE(screen.contains(first));
  EXPECT_EQ(first.center().x(), screen.center().x());
}

TEST(WorkspaceGeometry, WithoutStoredLayoutTheWindowIsSizedToItsScreen) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  QSettings layout(QString::fromStdString(dir.File("none.ini")), QSettings::IniFormat);
  MainWindow window(p);
  window.RememberLayout(layout);
  const QScreen* screen = QGuiApplication::primaryScreen();
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(window.size(), FirstStartGeometry(screen->availableGeometry()).size());
}

}  // namespace
}  // namespace ovelt
