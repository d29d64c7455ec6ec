#pragma once
// What the two report calculators ("Tests of Independence" and "Discrete Distributions") share:
// a place for their boxes, the report in a fixed-pitch box under them, and the buttons that
// compute, "Save Output", "Print Output" and "Cancel". The result lives in the workbench's
// output channel, so a save, a print and the session file get the same text as any analysis.

#include <QDialog>

#include <optional>

#include "tools/tool_message.h"
#include "ui/qt/tool_windows_print.h"

class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;

namespace ovelt {

class Workbench;

class ToolReportWindow : public QDialog {
  Q_OBJECT
 public:
  ToolReportWindow(Workbench& wb, const QString& caption, const QString& compute_text,
                   QWidget* parent = nullptr);

  [[nodiscard]] QString ReportText() const;
  [[nodiscard]] QPushButton* ComputeButton() const { return compute_; }
  [[nodiscard]] QPushButton* SaveButton() const { return save_; }
  [[nodiscard]] QPushButton* PrintButton() const { return print_; }
  [[nodiscard]] QPushButton* CancelButton() const { return cancel_; }
  // The printer of "Print Output" (the print dialog unless replaced).
  void SetPrinterChooser(PrinterChooser choose) { choose_printer_ = std::move(choose); }

 protected:
  // Where the subclass puts its boxes, above the report.
  [[nodiscard]] QVBoxLayout* Inputs() const { return inputs_; }
  [[nodiscard]] Workbench& Bench() const { return wb_; }
  // Runs the subclass's computation: true when its result stands in the output channel; a
  // refusal has been shown and the window stays as it was.
  virtual bool Compute() = 0;

 private:
  void OnCompute();
  void OnSave();
  void OnPrint();

  Workbench& wb_;
  QVBoxLayout* inputs_;
  QPlainTextEdit* report_;
  QPushButton* compute_;
  QPushButton* save_;
  QPushButton* print_;
  QPushButton* cancel_;
  PrinterChooser choose_printer_ = ChoosePrinterByDialog;
};

}  // namespace ovelt
