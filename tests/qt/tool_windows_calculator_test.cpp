#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/calculator_window.h"
#include "ui/qt/main_window.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

// The plain display: the value taken to its 15 significant decimal digits (as the display masks
// read a double), rounded half away from zero to 13 decimals, trailing zeros dropped, the point
// always shown. Positive values below 1e11 only.
std::string Plain(double value, char point = '.') {
  char text[64];
  std::snprintf(text, sizeof text, "%.14e", value);  // d.dddddddddddddde+XX
  const std::string s = text;
  const int exponent = std::stoi(s.substr(s.find('e') + 1));
  std::string digits = s.substr(0, 1) + s.substr(2, 14);  // 15 digits, point after the first
  // Integer digits and decimals, as text, with enough room for 13 decimals and a carry.
  std::string whole, fraction;
  if (exponent >= 0) {
    whole = digits.substr(0, exponent + 1);
    fraction = digits.substr(exponent + 1);
  } else {
    whole = "0";
    fraction = std::string(-exponent - 1, '0') + digits;
  }
  fraction.resize(std::max<size_t>(fraction.size(), 14), '0');
  const bool up = fraction[13] >= '5';
  std::string kept = whole + fraction.substr(0, 13);
  if (up) {
    int i = static_cast<int>(kept.size()) - 1;
    while (i >= 0 && kept[i] == '9') kept[i--] = '0';
    if (i < 0) kept.insert(kept.begin(), '1');
    else ++kept[i];
  }
  std::string decimals = kept.substr(kept.size() - 13);
  while (!decimals.empty() && decimals.back() == '0') decimals.pop_back();
  return kept.substr(0, kept.size() - 13) + point + decimals;
}

class CalculatorWindowTest : public ::testing::Test {
 protected:
  CalculatorWindowTest() : w(p, '.') {}
  std::string Press(const std::vector<std::string>& keys) {
    for (const std::string& key : keys) {
      QPushButton* button = w.Key(key);
      EXPECT_NE(button, nullptr) << key;
      if (button != nullptr) button->click();
    }
    return w.Readout().toStdString();
  }
  ScriptedPlatform p;
  CalculatorWindow w;
};

TEST_F(CalculatorWindowTest, StartsAtZero) {
  EXPECT_EQ(w.windowTitle(), "Evolutionary Calculator");
  EXPECT_EQ(w.Readout(), "0.");
}

// A four-function chain: each operator applies the pending one, so 2 + 3 X 4 is (2 + 3) * 4.
TEST_F(CalculatorWindowTest, ChainsAsAFourFunctionCalculator) {
  EXPECT_EQ(Press({"2", "+", "3", "X"}), Plain(2 + 3));
  EXPECT_EQ(Press({"4", "="}), Plain((2 + 3) * 4));
  EXPECT_EQ(Press({"C", "1", "0", "/", "4", "-", "1", "="}), Plain(10.0 / 4 - 1));
}

TEST_F(CalculatorWindowTest, FunctionKeysOnTheDisplayedValue) {
  EXPECT_EQ(Press({"2", "sqrt"}), Plain(std::sqrt(2.0)));
  EXPECT_EQ(Press({"C", "4", "a1"}), Plain(1 + 1.0 / 2 + 1.0 / 3));
  EXPECT_EQ(Press({"C", "4", "a2"}), Plain(1 + 1.0 / 4 + 1.0 / 9));
  EXPECT_EQ(Press({"C", "1", "a1"}), "0.");
  EXPECT_EQ(Press({"C", ".", "1", "JC"}), Plain(-0.75 * std::log(1 - 4 * 0.1 / 3)));
  EXPECT_EQ(Press({"C", "1", "0", "ln"}), Plain(std::log(10.0)));
  EXPECT_EQ(Press({"C", "8", "1/x"}), Plain(0.125));
  EXPECT_EQ(Press({"C", "1", "2", "x^2"}), Plain(144));
  // "%" turns 10 into 0.1 and the next operator takes that share of the accumulator.
  EXPECT_EQ(Press({"C", "2", "0", "0", "+", "1", "0", "%"}), Plain(0.1));
  EXPECT_EQ(Press({"="}), Plain(200 * 10 / 100.0));
  EXPECT_TRUE(p.Boxes.empty()) << p.LastBox();
}

TEST_F(CalculatorWindowTest, DisplayMasksTurnToTheExponentAbove1e11) {
  // 1e11 = 100000 ^ 2 * 10 shows in plain digits; 1.1e11 in the exponent form.
  EXPECT_EQ(Press({"1", "0", "0", "0", "0", "0", "x^2", "X", "1", "0", "="}), "100000000000.");
  EXPECT_EQ(Press({"C", "1", "0", "0", "0", "0", "0", "x^2", "X", "1", "1", "="}),
            "1.100000E+11");
}

TEST_F(CalculatorWindowTest, RefusalsShowTheirBoxAndLeaveTheDisplay) {
  EXPECT_EQ(Press({".", "7", "5", "JC"}), "0.75");
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Can't compute Jukes and Cantor for values equal or higher than 0.75");
  EXPECT_EQ(p.Boxes[0].Title, "Ovelt");
  EXPECT_EQ(Press({"C", ".", "7", "4", "9", "9", "JC"}),
            Plain(-0.75 * std::log(1 - 4 * 0.7499 / 3)));
  EXPECT_EQ(p.Boxes.size(), 1u);

  EXPECT_EQ(Press({"C", "3", "2", "7", "6", "8", "a1"}), "32768.");
  EXPECT_EQ(p.LastBox(), "Can't compute values higher than 32767");
  double a1 = 0;
  for (int i = 1; i < 32767; ++i) a1 += 1.0 / i;
  EXPECT_EQ(Press({"C", "3", "2", "7", "6", "7", "a1"}), Plain(a1));

  Press({"C", "5", "/", "0", "="});
  EXPECT_EQ(p.LastBox(), "Can't divide by zero");
  EXPECT_EQ(p.Boxes.back().Title, "Calculator");
  EXPECT_EQ(Press({"C", "0", "ln"}), "0.");
  EXPECT_EQ(p.LastBox(), "Can't compute values equal or lower than 0");
  Press({"C", "0", "1/x"});
  EXPECT_EQ(p.LastBox(), "Invalid selection");
}

TEST(CalculatorWindowLocale, ACommaLocaleShowsAndTakesTheComma) {
  ScriptedPlatform p;
  CalculatorWindow w(p, ',');
  EXPECT_EQ(w.Key(".")->text(), ",");
  w.Key("1")->click();
  w.Key(".")->click();
  w.Key("5")->click();
  EXPECT_EQ(w.Readout(), "1,5");
  w.Key("x^2")->click();
  EXPECT_EQ(w.Readout().toStdString(), Plain(2.25, ','));
}

TEST(CalculatorWindowKeyboard, TypedKeysPressTheSameKeys) {
  ScriptedPlatform p;
  CalculatorWindow w(p, '.');
  for (const char c : std::string("7*6")) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(c)));
    QApplication::sendEvent(&w, &press);
  }
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&w, &enter);
  EXPECT_EQ(w.Readout().toStdString(), Plain(42));
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&w, &escape);
  EXPECT_EQ(w.Readout(), "0.");
}

TEST(CalculatorMenu, ToolsMenuOpensTheCalculator) {
  ScriptedPlatform p;
  TempDir dir;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  QAction* action = window.ActionFor("MenuCalculator_Click");
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->text(), "&Evolutionary Calculator...");
  EXPECT_TRUE(action->isVisible());
  QString shown;
  QTimer::singleShot(0, [&] {
    auto* w = qobject_cast<CalculatorWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(w, nullptr);
    w->Key("9")->click();
    w->Key("sqrt")->click();
    shown = w->Readout();
    w->reject();
  });
  action->trigger();
  EXPECT_EQ(shown, "3.");
}

}  // namespace
}  // namespace ovelt
