#include "ui/qt/tool_windows_print.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStringList>

#include "platform/platform.h"

namespace ovelt {
namespace {

// Centimetres in the painter's device units.
double Cm(const QPrinter& printer, double cm) { return cm / 2.54 * printer.resolution(); }

QFont PrinterFont() {
  const QString family =
      QFontDatabase::families().contains("Courier New") ? "Courier New" : "Courier";
  QFont font(family, 10);
  font.setStyleHint(QFont::TypeWriter);
  return font;
}

}  // namespace

bool ChoosePrinterByDialog(QPrinter& printer) {
  QPrintDialog dialog(&printer);
  return dialog.exec() == QDialog::Accepted;
}

bool PrintReportText(QPrinter& printer, const std::string& crlf_text) {
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  painter.setFont(PrinterFont());
  const QFontMetrics metrics(painter.font(), &printer);

  // The text starts half a centimetre left of the printable area (never beyond the paper) and
  // 1.5 cm below its top.
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
  const double left_margin = page.left() - paper.left();
  const double x = -std::min(Cm(printer, 0.5), left_margin);
  const double top = Cm(printer, 1.5);
  const double bottom = page.height() - metrics.descent();

  QString text = QString::fromStdString(crlf_text);
  text.replace("\r\n", "\n");
  if (text.endsWith('\n')) text.chop(1);
  double y = top + metrics.ascent();
  for (const QString& line : text.split('\n')) {
    if (y > bottom) {
      if (!printer.newPage()) return false;
      y = top + metrics.ascent();
    }
    painter.drawText(QPointF(x, y), line);
    y += metrics.lineSpacing();
  }
  return painter.end();
}

void PrintOutputText(Platform& platform, const PrinterChooser& choose, const std::string& text) {
  QPrinter printer(QPrinter::HighResolution);
  if (!choose(printer)) return;
  if (!PrintReportText(printer, text))
    platform.MessageBox(kPrinterErrorText, MsgIcon::kCritical, MsgButtons::kOk, "Ovelt", false);
}

}  // namespace ovelt
