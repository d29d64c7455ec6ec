#include "ui/qt/text_window.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace ovelt {

TextWindow::TextWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  auto* layout = new QVBoxLayout(this);
  text_ = new QPlainTextEdit;
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  layout->addWidget(text_);
  resize(760, 520);
}

void TextWindow::SetReport(const QString& caption, const std::string& crlf_text) {
  setWindowTitle(caption);
  QString text = QString::fromStdString(crlf_text);
  text.replace("\r\n", "\n");
  text_->setPlainText(text);
}

QString TextWindow::Report() const { return text_->toPlainText(); }

}  // namespace ovelt
