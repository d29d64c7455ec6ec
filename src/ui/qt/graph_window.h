#pragma once
// The graph window `Form8` ("GRAPH"): the chart the last analysis left, a chooser of its
// series, the "Sign" button of the LD chart, and the commands that send the picture to a file,
// the clipboard or the printer. What is drawn comes from LayoutGraph; this class only shows it
// and talks to the user through the Platform.

#include <QImage>
#include <QWidget>

#include "shell/workbench.h"
#include "output/graph_data.h"
#include "output/graph_picture.h"
#include "ui/qt/graph_painter.h"

class QComboBox;
class QPainter;
class QPrinter;
class QPushButton;

namespace ovelt {

inline constexpr const char* kGraphCaption = "GRAPH";
inline constexpr const char* kGraphDisplayError = "Error Displaying Graph";
inline constexpr const char* kSaveGraphTitle = "Save Graphic";
inline constexpr const char* kSaveGraphFilter =
    "Bitmap Format (*.bmp) |*.bmp|PNG Format (*.png) |*.png|SVG Format (*.svg) |*.svg|"
    "All Files (*.*)|*.*";
inline constexpr const char* kGraphSavedOn = "Graph saved on file: ";
inline constexpr const char* kGraphToClipboard = "Graph sent to the clipboard";
inline constexpr const char* kGraphToPrinter = "Graph sent to the printer";

class GraphCanvas;

class GraphWindow : public QWidget {
  Q_OBJECT
 public:
  explicit GraphWindow(Workbench& workbench, QWidget* parent = nullptr);

  // `Form_Load`: takes the chart, fills the chooser and draws its first series. A kind outside
  // 1..16 leaves the window empty without a word; a failure says "Error Displaying Graph".
  void ShowGraph(const GraphData& graph);
  // Draws the series chosen in the chooser (and the significant pairs when "Sign" is down);
  // with `say_message`, shows the layout's message ("There are 0 significant values").
  void Draw(bool say_message = false);

  // "Save Graph...": the save dialog, then the file. False when nothing was written.
  bool SaveGraph();
  bool SaveGraphTo(const std::string& path);
  void CopyGraph();
  // The print dialog on `printer`, then PrintGraphTo.
  void PrintGraph(QPrinter& printer);
  // The print head and the chart on `printer`; "Graph sent to the printer" or "Printer Error".
  bool PrintGraphTo(QPrinter& printer);
  // The printed page: the print head in a fixed-pitch font, then the chart across `page`.
  void PaintPage(QPainter& painter, const QRect& page);

  [[nodiscard]] const GraphData& Graph() const { return graph_; }
  [[nodiscard]] const GraphPicture& Picture() const { return picture_; }
  [[nodiscard]] QImage Image(QSize size) const;
  [[nodiscard]] QComboBox* Chooser() const { return chooser_; }
  [[nodiscard]] QPushButton* SignButton() const { return sign_; }
  [[nodiscard]] GraphPalette& Palette() { return palette_; }
  // "Change Color": the colours dialog; OK redraws the chart in the new colours.
  void ChangeColours();
  // Empties the chart (the window is about to hide: closed file or a new run).
  void Clear();

 private:
  void Fail();

  Workbench& workbench_;
  GraphData graph_;
  GraphPicture picture_;
  GraphPalette palette_;
  QComboBox* chooser_ = nullptr;
  QPushButton* sign_ = nullptr;
  GraphCanvas* canvas_ = nullptr;
  bool filling_ = false;
};

}  // namespace ovelt
