#pragma once
// The text window of a result: the report in a fixed-pitch font, in a tab of the workspace.

#include <QWidget>

class QPlainTextEdit;

namespace ovelt {

class TextWindow : public QWidget {
  Q_OBJECT
 public:
  explicit TextWindow(QWidget* parent = nullptr);
  void SetReport(const QString& caption, const std::string& crlf_text);
  [[nodiscard]] QString Report() const;

 private:
  QPlainTextEdit* text_;
};

}  // namespace ovelt
