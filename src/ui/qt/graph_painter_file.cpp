// Writing a chart to a file, from the desktop or from the command line.

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>

#include <cstdlib>
#include <memory>

#include "ui/qt/graph_painter.h"

namespace ovelt {

namespace {

bool EndsWith(const std::string& text, const std::string& tail) {
  if (text.size() < tail.size()) return false;
  for (size_t i = 0; i < tail.size(); ++i) {
    const char c = text[text.size() - tail.size() + i];
    if (static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c) != tail[i]) return false;
  }
  return true;
}

bool WriteSvg(const GraphPicture& picture, const QString& path, const GraphPalette& palette) {
  // The generator writes through a buffer so that a file that cannot be opened is told apart.
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setSize(QSize(kGraphImageWidth, kGraphImageHeight));
  svg.setViewBox(QRect(0, 0, kGraphImageWidth, kGraphImageHeight));
  svg.setTitle("Ovelt graph");
  QPainter painter;
  if (!painter.begin(&svg)) return false;
  PaintGraph(painter, QRect(0, 0, kGraphImageWidth, kGraphImageHeight), picture, palette);
  painter.end();
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  return file.write(buffer.data()) == buffer.data().size();
}

}  // namespace

bool SaveGraphFile(const GraphPicture& picture, const std::string& path,
                   const GraphPalette& palette) {
  // Text needs the font database of a running application; the command line has none.
  std::unique_ptr<QGuiApplication> own;
  if (QCoreApplication::instance() == nullptr) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "ovelt";
    static char* argv[] = {name, nullptr};
    own = std::make_unique<QGuiApplication>(argc, argv);
  }
  const QString file = QString::fromStdString(path);
  if (EndsWith(path, ".svg")) return WriteSvg(picture, file, palette);
  const QImage image =
      RenderGraphImage(picture, QSize(kGraphImageWidth, kGraphImageHeight), palette);
  return image.save(file, EndsWith(path, ".png") ? "PNG" : "BMP");
}

}  // namespace ovelt
