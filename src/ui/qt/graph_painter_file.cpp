// Writing a chart to a file, from the desktop or from the command line.

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>

#include <cstdlib>
#include <memory>

#include "files/whole_file.h"
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

// The picture's bytes in the file's format: SVG, PNG or BMP.
QByteArray PictureBytes(const GraphPicture& picture, const std::string& path,
                        const GraphPalette& palette) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (EndsWith(path, ".svg")) {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setSize(QSize(kGraphImageWidth, kGraphImageHeight));
    svg.setViewBox(QRect(0, 0, kGraphImageWidth, kGraphImageHeight));
    svg.setTitle("Ovelt graph");
    QPainter painter;
    if (!painter.begin(&svg)) return {};
    PaintGraph(painter, QRect(0, 0, kGraphImageWidth, kGraphImageHeight), picture, palette);
    painter.end();
  } else {
    const QImage image =
        RenderGraphImage(picture, QSize(kGraphImageWidth, kGraphImageHeight), palette);
    if (!image.save(&buffer, EndsWith(path, ".png") ? "PNG" : "BMP")) return {};
  }
  return buffer.data();
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
  // Drawn whole in memory first, so that the file is written whole or not at all.
  const QByteArray bytes = PictureBytes(picture, path, palette);
  if (bytes.isEmpty()) return false;
  return WriteWholeFile(path, std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
}

}  // namespace ovelt
