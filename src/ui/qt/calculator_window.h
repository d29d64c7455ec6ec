#pragma once
// The "Evolutionary Calculator": a display and a key pad that drive the calculator engine of
// tools/calculator.h one key at a time. Keys typed on the keyboard press the same keys. A key
// that fails shows its box through the Platform and leaves the display as it was.

#include <QDialog>

#include <map>
#include <string>

#include "tools/calculator.h"
#include "tools/calculator_keys.h"

class QGridLayout;
class QLineEdit;
class QPushButton;

namespace ovelt {

class Platform;

inline constexpr const char* kCalculatorCaption = "Evolutionary Calculator";

class CalculatorWindow : public QDialog {
  Q_OBJECT
 public:
  // `decimal_separator`: the point of the locale ('.' or ','), shown on the display and on the
  // point key.
  CalculatorWindow(Platform& platform, char decimal_separator, QWidget* parent = nullptr);

  // The key written as the engine's key words read it: "7", ".", "+", "X", "=", "%", "CE", "C",
  // "a1", "a2", "1/x", "JC", "ln", "sqrt", "x^2".
  [[nodiscard]] QPushButton* Key(const std::string& word) const;
  [[nodiscard]] QString Readout() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddKey(QGridLayout* grid, const std::string& word, const QString& face, int row,
              int column, int row_span = 1, int column_span = 1);
  void Press(const std::string& word);

  Platform& platform_;
  Calculator calculator_;
  QLineEdit* display_;
  std::map<std::string, QPushButton*> keys_;
};

// The locale's decimal point as the calculator takes it: ',' or '.'.
[[nodiscard]] char LocaleDecimalSeparator();

}  // namespace ovelt
