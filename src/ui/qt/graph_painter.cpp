#include "ui/qt/graph_painter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygon>

#include <vector>

namespace ovelt {

namespace {

constexpr int kTextHeight = 125;    // logical units; about a tenth of the frame's top margin x 4
constexpr int kTextBox = 3400;      // room given to one text around its anchor
constexpr int kMarkRadius = 32;
constexpr qreal kPenWidth = 1.4;    // device pixels

QColor ColourOf(const GraphPen& pen, const GraphPalette& palette) {
  switch (pen.Role) {
    case GraphRole::kAxes:
      return palette.Axes;
    case GraphRole::kLegend:
      return palette.Legend;
    case GraphRole::kSignificant:
      return palette.Significant;
    case GraphRole::kBackground:
      return palette.Background;
    case GraphRole::kSeries:
      break;
  }
  const int i = pen.Series < 0 ? 0 : pen.Series % kSeriesColours;
  return palette.Series[static_cast<size_t>(i)];
}

QPen PenOf(const GraphPen& pen, const GraphPalette& palette, bool dashed = false) {
  QPen p(ColourOf(pen, palette));
  p.setCosmetic(true);
  p.setWidthF(kPenWidth);
  if (dashed) p.setStyle(Qt::DashLine);
  return p;
}

QPoint Q(const GraphPoint& p) { return {p.X, p.Y}; }

void PaintMark(QPainter& painter, const GraphMark& mark, const GraphPalette& palette) {
  const QColor colour = ColourOf(mark.Pen, palette);
  painter.setPen(PenOf(mark.Pen, palette));
  const QPoint c = Q(mark.At);
  switch (mark.Shape) {
    case MarkShape::kDot:
      painter.setBrush(colour);
      painter.drawEllipse(c, kMarkRadius, kMarkRadius);
      break;
    case MarkShape::kSquare:
      painter.setBrush(colour);
      painter.drawRect(c.x() - kMarkRadius, c.y() - kMarkRadius, 2 * kMarkRadius,
                       2 * kMarkRadius);
      break;
    case MarkShape::kCross:
      painter.drawLine(c + QPoint(-kMarkRadius, -kMarkRadius), c + QPoint(kMarkRadius, kMarkRadius));
      painter.drawLine(c + QPoint(-kMarkRadius, kMarkRadius), c + QPoint(kMarkRadius, -kMarkRadius));
      break;
  }
  painter.setBrush(Qt::NoBrush);
}

void PaintText(QPainter& painter, const GraphText& text, const GraphPalette& palette) {
  painter.setPen(PenOf(text.Pen, palette));
  const int y = text.At.Y - kTextHeight;
  QRect box;
  int align = Qt::AlignVCenter;
  switch (text.Anchor) {
    case TextAnchor::kRight:
      box = QRect(text.At.X - kTextBox, y, kTextBox, 2 * kTextHeight);
      align |= Qt::AlignRight;
      break;
    case TextAnchor::kCentre:
      box = QRect(text.At.X - kTextBox / 2, y, kTextBox, 2 * kTextHeight);
      align |= Qt::AlignHCenter;
      break;
    case TextAnchor::kLeft:
      box = QRect(text.At.X, y, kTextBox, 2 * kTextHeight);
      align |= Qt::AlignLeft;
      break;
  }
  // A centred label is centred on its digits, not on the blanks of its mask.
  QString shown = QString::fromStdString(text.Text);
  if (text.Anchor == TextAnchor::kCentre) shown = shown.trimmed();
  painter.drawText(box, align, shown);
}

}  // namespace

void PaintGraph(QPainter& painter, const QRect& target, const GraphPicture& picture,
                const GraphPalette& palette) {
  painter.save();
  painter.fillRect(target, palette.Background);
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  painter.setViewport(target);
  painter.setWindow(0, 0, kPageWidth, kPageHeight);
  QFont font("DejaVu Sans");
  font.setPixelSize(kTextHeight);
  painter.setFont(font);

  const QRect frame(QPoint(kFrameLeft, kFrameTop), QPoint(kFrameRight, kFrameBottom));
  // Data and their lines stay inside the frame; axes, ticks and texts may lie outside it.
  for (const GraphLine& line : picture.Lines) {
    if (line.Clip) {
      painter.setClipRect(frame);
    } else {
      painter.setClipping(false);
    }
    painter.setPen(PenOf(line.Pen, palette, line.Dashed));
    painter.drawLine(Q(line.From), Q(line.To));
  }
  painter.setClipRect(frame.adjusted(-kMarkRadius, -kMarkRadius, kMarkRadius, kMarkRadius));
  for (const GraphPolyline& line : picture.Polylines) {
    QPolygon polygon;
    for (const GraphPoint& p : line.Points) polygon << Q(p);
    painter.setPen(PenOf(line.Pen, palette));
    painter.drawPolyline(polygon);
  }
  // A mark stands on a value inside the axes' range, so it is drawn whole even where it sits on
  // the frame.
  painter.setClipping(false);
  for (const GraphMark& mark : picture.Marks) PaintMark(painter, mark, palette);
  for (const GraphText& text : picture.Texts) PaintText(painter, text, palette);
  painter.restore();
}

QImage RenderGraphImage(const GraphPicture& picture, QSize size, const GraphPalette& palette) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(palette.Background);
  QPainter painter(&image);
  PaintGraph(painter, image.rect(), picture, palette);
  painter.end();
  return image;
}

}  // namespace ovelt
