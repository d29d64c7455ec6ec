#include "ui/qt/tool_windows_report.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/workbench.h"

namespace ovelt {

ToolReportWindow::ToolReportWindow(Workbench& wb, const QString& caption,
                                   const QString& compute_text, QWidget* parent)
    : QDialog(parent), wb_(wb) {
  setWindowTitle(caption);
  auto* layout = new QVBoxLayout(this);
  inputs_ = new QVBoxLayout;
  layout->addLayout(inputs_);

  report_ = new QPlainTextEdit;
  report_->setReadOnly(true);
  report_->setLineWrapMode(QPlainTextEdit::NoWrap);
  report_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  report_->setMinimumHeight(220);
  layout->addWidget(report_, 1);

  auto* buttons = new QHBoxLayout;
  compute_ = new QPushButton(compute_text);
  save_ = new QPushButton("Save Output");
  print_ = new QPushButton("Print Output");
  cancel_ = new QPushButton("Cancel");
  compute_->setDefault(true);
  // Nothing to save or print until this window shows a result.
  save_->setEnabled(false);
  print_->setEnabled(false);
  for (QPushButton* button : {compute_, save_, print_, cancel_}) buttons->addWidget(button);
  layout->addLayout(buttons);

  connect(compute_, &QPushButton::clicked, this, &ToolReportWindow::OnCompute);
  connect(save_, &QPushButton::clicked, this, &ToolReportWindow::OnSave);
  connect(print_, &QPushButton::clicked, this, &ToolReportWindow::OnPrint);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  resize(560, 560);
}

QString ToolReportWindow::ReportText() const { return report_->toPlainText(); }

void ToolReportWindow::OnCompute() {
  OutputChannel& channel = wb_.Output();
  channel.ReopenDialog = 0;
  // A refusal keeps the window open with the boxes as typed, and the last report as it stood.
  if (!Compute()) return;
  QString text = QString::fromStdString(channel.TextBuffer);
  text.replace("\r\n", "\n");
  report_->setPlainText(text);
  save_->setEnabled(true);
  print_->setEnabled(true);
}

void ToolReportWindow::OnSave() {
  OutputChannel& channel = wb_.Output();
  const FileDialogRequest request = channel.SaveOutputDialog();
  if (auto path = wb_.Ui().SaveFileName(request.Title, request.Filter, request.DefaultName))
    channel.SaveCurrentOutput(*path);
}

void ToolReportWindow::OnPrint() {
  PrintOutputText(wb_.Ui(), choose_printer_, wb_.Output().SavedFileText());
}

}  // namespace ovelt
