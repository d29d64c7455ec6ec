#pragma once
// Draws a chart's primitives with QPainter on any paint device: a QImage for the window, the
// clipboard and bitmap files, a QSvgGenerator, a QPrinter. The logical page of the chart is
// mapped onto the target rectangle; pens are cosmetic and the text is sized in logical units,
// so the picture keeps its proportions at any size. Needs Qt Gui only.

#include <QColor>
#include <QImage>
#include <QRect>
#include <QSize>

#include <array>
#include <string>

#include "output/graph_picture.h"

class QPainter;

namespace ovelt {

// The colours of the chart (the "Change Color" dialog edits them).
struct GraphPalette {
  QColor Legend{Qt::black};
  QColor Axes{Qt::black};
  QColor Significant{200, 0, 0};
  QColor Background{Qt::white};
  std::array<QColor, kSeriesColours> Series{QColor(0, 0, 190), QColor(0, 130, 0),
                                            QColor(170, 0, 170), QColor(200, 110, 0)};
};

// Paints the picture into `target` (device coordinates), background included.
void PaintGraph(QPainter& painter, const QRect& target, const GraphPicture& picture,
                const GraphPalette& palette);

// The picture on an image of `size` pixels.
[[nodiscard]] QImage RenderGraphImage(const GraphPicture& picture, QSize size,
                                      const GraphPalette& palette);

// The default size of a saved picture, in pixels.
inline constexpr int kGraphImageWidth = 876;
inline constexpr int kGraphImageHeight = 564;

// Writes the picture to `path`, whole or not at all: SVG for ".svg", a PNG for ".png", a bitmap
// otherwise (".bmp"). Works without a running application (the command line): one is made for
// the time of the call. False when the file cannot be written.
bool SaveGraphFile(const GraphPicture& picture, const std::string& path,
                   const GraphPalette& palette = {});

}  // namespace ovelt
