#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <cstdlib>
#include <string>

#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "ui/qt/graph_colours_dialog.h"
#include "ui/qt/graph_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;

GraphData Windows() {
  GraphData g;
  g.GraphKind = kGraphPolymorphism;
  g.Table = WindowTable(12, 5);
  for (int32_t r = 1; r <= 12; ++r) {
    g.Table.at(r, 1) = static_cast<float>(25 * r);
    g.Table.at(r, 2) = static_cast<float>(0.001 * (r % 5 + 1));
  }
  g.Table.RowsUsed = g.GraphRows = 12;
  return g;
}

int OfColour(const QImage& image, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour) ++count;
  return count;
}

// Answers the next modal colours dialog with `act`.
void AnswerColours(const std::function<void(GraphColoursDialog&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<GraphColoursDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

TEST(GraphColoursTest, OneButtonPerColourOfTheChart) {
  GraphColoursDialog dialog(GraphPalette{});
  EXPECT_EQ(dialog.windowTitle(), "Change Color");
  const std::vector<QString> names = GraphColoursDialog::ColourNames();
  ASSERT_EQ(names.size(), 8u);
  EXPECT_EQ(names.front(), "Legend");
  EXPECT_EQ(names[2], "Significant Points");
  EXPECT_EQ(names.back(), "Background");
  for (int i = 0; i < 8; ++i) EXPECT_NE(dialog.Button(i), nullptr);
}

TEST(GraphColoursTest, OkRedrawsInTheNewColours) {
  ScriptedPlatform platform;
  Workbench wb(platform);
  GraphWindow window(wb);
  window.ShowGraph(Windows());
  const QColor background(255, 255, 200), series(0, 160, 160);
  AnswerColours([&](GraphColoursDialog& d) {
    d.SetColour(7, background);
    d.SetColour(3, series);
    d.accept();
  });
  window.ChangeColours();
  EXPECT_EQ(window.Palette().Background, background);
  EXPECT_EQ(window.Palette().Series[0], series);
  const QImage image = window.Image(QSize(kGraphImageWidth, kGraphImageHeight));
  EXPECT_GT(OfColour(image, background), image.width() * image.height() / 2);
  EXPECT_GT(OfColour(image, series), 100);
  EXPECT_EQ(OfColour(image, QColor(Qt::white)), 0);
}

TEST(GraphColoursTest, CancelKeepsTheColours) {
  ScriptedPlatform platform;
  Workbench wb(platform);
  GraphWindow window(wb);
  window.ShowGraph(Windows());
  AnswerColours([](GraphColoursDialog& d) {
    d.SetColour(7, QColor(Qt::black));
    d.reject();
  });
  window.ChangeColours();
  EXPECT_EQ(window.Palette().Background, QColor(Qt::white));
}

TEST(GraphColoursTest, Screenshot) {
  const char* shots = std::getenv("OVELT_SHOTS");
  if (shots == nullptr) GTEST_SKIP() << "OVELT_SHOTS not set";
  GraphColoursDialog dialog(GraphPalette{});
  dialog.show();
  QApplication::processEvents();
  EXPECT_TRUE(dialog.grab().save(QString(shots) + "/graphs_colores_dialog.png"));
}

}  // namespace
}  // namespace ovelt
