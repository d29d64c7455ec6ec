#include "ui/qt/text_window.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace ovelt {

TextWindow::TextWindow(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  text_ = new QPlainTextEdit;
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_);
  setFocusProxy(text_);
}

void TextWindow::SetReport(const QString& caption, const std::string& crlf_text) {
  setWindowTitle(caption);
  QString text = QString::fromStdString(crlf_text);
  text.replace("\r\n", "\n");
  text_->setPlainText(text);
}

QString TextWindow::Report() const { return text_->toPlainText(); }

}  // namespace ovelt
