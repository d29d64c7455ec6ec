#include "ui/qt/calculator_window.h"

#include <QFont>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include "platform/platform.h"

namespace ovelt {

char LocaleDecimalSeparator() { return QLocale().decimalPoint() == "," ? ',' : '.'; }

CalculatorWindow::CalculatorWindow(Platform& platform, char decimal_separator, QWidget* parent)
    : QDialog(parent), platform_(platform), calculator_(decimal_separator) {
  setWindowTitle(kCalculatorCaption);
  auto* grid = new QGridLayout(this);
  display_ = new QLineEdit;
  display_->setReadOnly(true);
  display_->setAlignment(Qt::AlignRight);
  display_->setFocusPolicy(Qt::NoFocus);
  QFont big = display_->font();
  big.setPointSize(big.pointSize() + 6);
  display_->setFont(big);
  display_->setMinimumWidth(300);
  grid->addWidget(display_, 0, 0, 1, 5);

  // The population-genetic functions above the four-function pad.
  AddKey(grid, "a1", "a1", 1, 0);
  AddKey(grid, "a2", "a2", 1, 1);
  AddKey(grid, "JC", "J && C", 1, 2);
  AddKey(grid, "ln", "ln", 1, 3);
  AddKey(grid, "sqrt", QString::fromUtf8("\u221ax"), 1, 4);
  AddKey(grid, "x^2", QString::fromUtf8("x\u00b2"), 2, 0);
  AddKey(grid, "1/x", "1/x", 2, 1);
  AddKey(grid, "%", "%", 2, 2);
  AddKey(grid, "CE", "CE", 2, 3);
  AddKey(grid, "C", "C", 2, 4);
  const char* const digits[3][3] = {{"7", "8", "9"}, {"4", "5", "6"}, {"1", "2", "3"}};
  for (int r = 0; r < 3; ++r)
    for (int c = 0; c < 3; ++c) AddKey(grid, digits[r][c], digits[r][c], 3 + r, c);
  AddKey(grid, "0", "0", 6, 0, 1, 2);
  AddKey(grid, ".", QString(QChar(decimal_separator)), 6, 2);
  AddKey(grid, "/", "/", 3, 3);
  AddKey(grid, "X", "X", 4, 3);
  AddKey(grid, "-", "-", 5, 3);
  AddKey(grid, "+", "+", 6, 3);
  AddKey(grid, "=", "=", 3, 4, 4, 1);

  keys_.at("a1")->setToolTip("a1: sum of 1/i for i = 1 to n - 1");
  keys_.at("a2")->setToolTip("a2: sum of 1/i^2 for i = 1 to n - 1");
  keys_.at("JC")->setToolTip("Jukes and Cantor: -(3/4) ln(1 - 4x/3)");
  keys_.at("sqrt")->setToolTip("Square root");
  keys_.at("x^2")->setToolTip("Square");
  display_->setText(QString::fromStdString(calculator_.Readout()));
}

void CalculatorWindow::AddKey(QGridLayout* grid, const std::string& word, const QString& face,
                              int row, int column, int row_span, int column_span) {
  auto* key = new QPushButton(face);
  key->setObjectName(QString::fromStdString("key " + word));
  key->setFocusPolicy(Qt::NoFocus);
  key->setAutoDefault(false);
  key->setMinimumSize(54, 36);
  if (row_span > 1) key->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  grid->addWidget(key, row, column, row_span, column_span);
  connect(key, &QPushButton::clicked, this, [this, word] { Press(word); });
  keys_[word] = key;
}

QPushButton* CalculatorWindow::Key(const std::string& word) const {
  auto it = keys_.find(word);
  return it == keys_.end() ? nullptr : it->second;
}

QString CalculatorWindow::Readout() const { return display_->text(); }

void CalculatorWindow::Press(const std::string& word) {
  const CalcKeyParse parse = ParseCalculatorKeys(word);
  for (const CalcKey& key : parse.Keys) {
    if (const auto failure = PressKey(calculator_, key))
      platform_.MessageBox(failure->Text, MsgIcon::kWarning, MsgButtons::kOk, failure->Title,
                           false);
  }
  display_->setText(QString::fromStdString(calculator_.Readout()));
}

void CalculatorWindow::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  std::string word;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    word = "=";
  } else if (event->key() == Qt::Key_Escape) {
    // Escape clears all, as the C key does, rather than closing the window.
    word = "C";
  } else if (event->key() == Qt::Key_Delete) {
    word = "CE";
  } else if (text.size() == 1 && QString("0123456789.,+-*xX/=%").contains(text[0])) {
    word = text.toStdString();
  }
  if (word.empty()) {
    QDialog::keyPressEvent(event);
    return;
  }
  Press(word);
  event->accept();
}

}  // namespace ovelt
