// Pictures of the main window at work on the bundled example, for a person to look at: the
// window with a file open, the option dialog, the text and grid windows of a sliding-window
// run, its graph and the data viewer. Runs only when OVELT_SHOTS names a directory; the
// pictures are mainwin_<name>.png there.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QTimer>

#include <cstdlib>
#include <string>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/data_viewer_handlers.h"
#include "ui/qt/data_viewer_window.h"
#include "ui/qt/graph_handlers.h"
#include "ui/qt/graph_window.h"
#include "ui/qt/grid_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/option_dialog.h"
#include "ui/qt/text_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

class MainWindowShots : public ::testing::Test {
 protected:
  void SetUp() override {
    const char* shots = std::getenv("OVELT_SHOTS");
    if (shots == nullptr || *shots == '\0') GTEST_SKIP() << "OVELT_SHOTS is not set";
    shots_ = shots;
    p.ProgramDir = dir.Path().string();
  }

  void Save(QWidget* widget, const std::string& name) {
    ASSERT_NE(widget, nullptr) << name;
    widget->show();
    QApplication::processEvents();
    const QString path = QString::fromStdString(shots_ + "/mainwin_" + name + ".png");
    EXPECT_TRUE(widget->grab().save(path)) << path.toStdString();
  }

  TempDir dir;
  ScriptedPlatform p;
  std::string shots_;
};

TEST_F(MainWindowShots, ASlidingWindowRunOnTheExample) {
  MainWindow window(p);
  window.resize(1000, 700);
  Save(&window, "empty");
  ASSERT_TRUE(window.Bench().OpenPath(OVELT_EXAMPLES "/example.fas"));
  window.Refresh();
  Save(&window, "open");

  // DNA polymorphism along a window of 100 sites, step 25, through the generated dialog.
  QTimer::singleShot(0, [this] {
    auto* dialog = qobject_cast<OptionDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    for (auto* box : dialog->findChildren<QCheckBox*>())
      if (box->text() == "Sliding Window") box->setChecked(true);
    for (auto* edit : dialog->findChildren<QLineEdit*>()) {
      if (edit->objectName() == "window") edit->setText("100");
      if (edit->objectName() == "step") edit->setText("25");
    }
    Save(dialog, "option_dialog");
    dialog->accept();
  });
  window.ActionFor("MenuDnaPol_Click")->trigger();
  Save(&window, "after_run");
  Save(window.Text(), "text_window");
  Save(window.Grid(), "grid_window");

  window.Trigger("grafics_Click");
  Save(FindGraphWindow(window), "graph_window");

  window.Trigger("verf1_Click");
  Save(OpenDataViewer(window), "data_viewer");
}

}  // namespace
}  // namespace ovelt
