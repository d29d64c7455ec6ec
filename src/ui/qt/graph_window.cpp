#include "ui/qt/graph_window.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include <exception>

#include "output/graph_layout.h"
#include "output/graph_print_head.h"
#include "output/graph_series.h"
#include "ui/qt/graph_colours_dialog.h"

namespace ovelt {

class GraphCanvas : public QWidget {
 public:
  GraphCanvas(const GraphPicture& picture, const GraphPalette& palette, QWidget* parent)
      : QWidget(parent), picture_(picture), palette_(palette) {
    setMinimumSize(kGraphImageWidth * 3 / 4, kGraphImageHeight * 3 / 4);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    // The page keeps its proportions in a tab of any shape: texts and marks are not stretched.
    painter.fillRect(rect(), palette_.Background);
    int width = rect().width();
    int height = width * kPageHeight / kPageWidth;
    if (height > rect().height()) {
      height = rect().height();
      width = height * kPageWidth / kPageHeight;
    }
    const QRect page((rect().width() - width) / 2, (rect().height() - height) / 2, width, height);
    PaintGraph(painter, page, picture_, palette_);
  }

 private:
  const GraphPicture& picture_;
  const GraphPalette& palette_;
};

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

// The data the print head names: the file, the date and the sequences the run used.
GraphPrintFacts PrintFacts(Workbench& wb, int16_t kind) {
  const ActiveData& ad = wb.Data();
  GraphPrintFacts facts;
  facts.FilePath = ad.FilePath;
  facts.Date = wb.Ui().Now();
  facts.GraphKind = kind;
  const UsedSequences& used = wb.Output().Used;
  facts.PopulationName = used.FirstSet;
  facts.SequencesUsed = used.FirstCount;
  facts.SecondName = used.SecondSet;
  facts.SecondSequences = used.SecondCount;
  return facts;
}

}  // namespace

GraphWindow::GraphWindow(Workbench& workbench, QWidget* parent)
    : QWidget(parent), workbench_(workbench) {
  setWindowTitle(kGraphCaption);
  chooser_ = new QComboBox;
  chooser_->setMinimumContentsLength(22);
  sign_ = new QPushButton("Sign");
  sign_->setCheckable(true);
  auto* save = new QPushButton("Save Graph...");
  auto* copy = new QPushButton("Copy");
  auto* print = new QPushButton("Print...");
  auto* colours = new QPushButton("Colors...");
  canvas_ = new GraphCanvas(picture_, palette_, this);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(chooser_);
  buttons->addWidget(sign_);
  buttons->addStretch(1);
  buttons->addWidget(save);
  buttons->addWidget(copy);
  buttons->addWidget(print);
  buttons->addWidget(colours);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(buttons);
  layout->addWidget(canvas_, 1);
  // A click on the chart gives the window the focus, and with it the File menu's graph entries.
  canvas_->setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(canvas_);

  connect(chooser_, &QComboBox::currentIndexChanged, this, [this] {
    if (!filling_) Draw();
  });
  // Only pressing "Sign" asks for the significant pairs; a redraw with it down stays quiet.
  connect(sign_, &QPushButton::toggled, this, [this](bool on) { Draw(on); });
  connect(save, &QPushButton::clicked, this, [this] { SaveGraph(); });
  connect(copy, &QPushButton::clicked, this, [this] { CopyGraph(); });
  connect(colours, &QPushButton::clicked, this, [this] { ChangeColours(); });
  connect(print, &QPushButton::clicked, this, [this] {
    QPrinter printer(QPrinter::HighResolution);
    PrintGraph(printer);
  });
}

void GraphWindow::ShowGraph(const GraphData& graph) {
  try {
    graph_ = graph;
    filling_ = true;
    chooser_->clear();
    sign_->setChecked(false);
    for (const GraphSeries& s : SeriesOffered(graph_)) chooser_->addItem(Q(s.Name));
    sign_->setVisible(graph_.GraphKind == kGraphLinkage);
    filling_ = false;
    Draw();
  } catch (const std::exception&) {
    filling_ = false;
    Fail();
  }
}

void GraphWindow::Draw(bool say_message) {
  try {
    picture_ = LayoutGraph(graph_, {chooser_->currentIndex(), sign_->isChecked()});
    canvas_->update();
    if (say_message && !picture_.Message.empty())
      workbench_.Ui().MessageBox(picture_.Message, MsgIcon::kInformation);
  } catch (const std::exception&) {
    Fail();
  }
}

void GraphWindow::Fail() {
  picture_ = {};
  canvas_->update();
  workbench_.Ui().MessageBox(kGraphDisplayError, MsgIcon::kWarning);
}

void GraphWindow::ChangeColours() {
  GraphColoursDialog dialog(palette_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  palette_ = dialog.Palette();
  canvas_->update();
}

void GraphWindow::Clear() {
  graph_ = {};
  picture_ = {};
  filling_ = true;
  chooser_->clear();
  filling_ = false;
  canvas_->update();
}

QImage GraphWindow::Image(QSize size) const {
  return RenderGraphImage(picture_, size, palette_);
}

bool GraphWindow::SaveGraph() {
  const auto path = workbench_.Ui().SaveFileName(kSaveGraphTitle, kSaveGraphFilter, "*.bmp");
  if (!path) return false;
  return SaveGraphTo(*path);
}

bool GraphWindow::SaveGraphTo(const std::string& path) {
  if (!SaveGraphFile(picture_, path, palette_)) {
    workbench_.Ui().MessageBox("Can't save the graph on the file: " + path, MsgIcon::kWarning);
    return false;
  }
  workbench_.Ui().MessageBox(kGraphSavedOn + path, MsgIcon::kInformation);
  return true;
}

void GraphWindow::CopyGraph() {
  QGuiApplication::clipboard()->setImage(Image(QSize(kGraphImageWidth, kGraphImageHeight)));
  workbench_.Ui().MessageBox(kGraphToClipboard, MsgIcon::kInformation);
}

void GraphWindow::PrintGraph(QPrinter& printer) {
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!printer.outputFileName().isEmpty()) printer.setOutputFormat(QPrinter::PdfFormat);
  PrintGraphTo(printer);
}

bool GraphWindow::PrintGraphTo(QPrinter& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) {
    workbench_.Ui().MessageBox("Printer Error", MsgIcon::kWarning);
    return false;
  }
  PaintPage(painter, painter.viewport());
  painter.end();
  workbench_.Ui().MessageBox(kGraphToPrinter, MsgIcon::kInformation);
  return true;
}

void GraphWindow::PaintPage(QPainter& painter, const QRect& page) {
  QFont font("DejaVu Sans Mono");
  font.setStyleHint(QFont::TypeWriter);
  font.setPointSize(9);
  painter.setFont(font);
  const int line = painter.fontMetrics().lineSpacing();
  int y = page.top() + line;
  for (const std::string& text : GraphPrintHead(PrintFacts(workbench_, graph_.GraphKind))) {
    painter.drawText(page.left(), y, Q(text));
    y += line;
  }
  y += line;
  const int width = page.width();
  const int height = width * kPageHeight / kPageWidth;
  PaintGraph(painter, QRect(page.left(), y, width, height), picture_, palette_);
}

}  // namespace ovelt
