#include "ui/qt/print_output.h"

#include <QFontDatabase>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <memory>

#include "ui/qt/main_window.h"
#include "ui/qt/print_text.h"

namespace ovelt {

namespace {

// Keeps the printer alive as long as the main window, without a member of its own.
class PrinterHolder : public QObject {
 public:
  explicit PrinterHolder(QObject* parent)
      : QObject(parent), printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    setObjectName("ProgramPrinter");
  }
  QPrinter& Printer() { return *printer_; }

 private:
  std::unique_ptr<QPrinter> printer_;
};

}  // namespace

QPrinter& ProgramPrinter(MainWindow& window) {
  auto* holder = window.findChild<PrinterHolder*>("ProgramPrinter", Qt::FindDirectChildrenOnly);
  if (holder == nullptr) holder = new PrinterHolder(&window);
  return holder->Printer();
}

const std::string& PrintFontFamily() {
  static const std::string family =
      QFontDatabase::families().contains("Courier New") ? "Courier New" : "Courier";
  return family;
}

bool PrintTextTo(QPrinter& printer, const std::string& text) {
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  QFont font(QString::fromStdString(PrintFontFamily()));
  font.setStyleHint(QFont::TypeWriter);
  font.setPointSize(9);
  painter.setFont(font);
  const double dots_per_cm = printer.resolution() / 2.54;
  const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
  const double top = 1.5 * dots_per_cm;
  const double line = painter.fontMetrics().lineSpacing();
  const double bottom = page.height() - line;
  double y = top;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::string row = text.substr(start, end - start);
    if (!row.empty() && row.back() == '\r') row.pop_back();
    if (y + line > bottom) {
      if (!printer.newPage()) return false;
      y = top;
    }
    painter.drawText(QPointF(0.0, y + painter.fontMetrics().ascent()),
                     QString::fromStdString(row));
    y += line;
    if (end == text.size()) break;
    start = end + 1;
  }
  return painter.end();
}

bool PrintOutputTo(MainWindow& window, QPrinter& printer) {
  OutputChannel& channel = window.Bench().Output();
  if (channel.GridShown != 0)
    channel.AskPrintFinalOnly(static_cast<int64_t>(channel.Grid1.Rows.size()));
  const std::string text = PrintableText(channel, window.Bench().Ui().Now());
  if (!PrintTextTo(printer, text)) {
    window.Bench().Ui().MessageBox(kPrinterError, MsgIcon::kCritical);
    return false;
  }
  return true;
}

void PrintOutput(MainWindow& window) {
  QPrinter& printer = ProgramPrinter(window);
  QPrintDialog dialog(&printer, &window);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
  if (dialog.exec() != QDialog::Accepted) return;
  // A file named in the dialog makes a PDF.
  if (!printer.outputFileName().isEmpty()) printer.setOutputFormat(QPrinter::PdfFormat);
  PrintOutputTo(window, printer);
}

void PageSetup(MainWindow& window) {
  QPageSetupDialog dialog(&ProgramPrinter(window), &window);
  dialog.exec();
}

void AddPrintHandlers(MainWindow& window) {
  window.AddHandler("printout_Click", [&window] { PrintOutput(window); });
  window.AddHandler("PageSetup_Click", [&window] { PageSetup(window); });
}

}  // namespace ovelt
