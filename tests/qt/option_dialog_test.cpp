#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QTimer>

#include "ui/qt/option_dialog.h"

namespace ovelt {
namespace {

struct DemoOptions {
  int32_t RegionFrom = 1, RegionTo = 0;
  bool Extra = false;
  int32_t Window = 100;
  int16_t Policy = 1;
  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.Flag(Extra, {"extra", "Compute Pi (Jukes and Cantor)", ""});
    v.Integer(Window, {"window", "Window Length:", ""}, 1, 50);
    v.Choice(Policy, {"gaps", "Gaps", ""}, {"excluded", "considered"}, 1);
  }
};

// Closes the warning box that a refused OK shows, keeping its text.
void CloseNextWarning(QString* text) {
  QTimer::singleShot(0, [text] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    *text = box->text();
    box->accept();
  });
}

TEST(OptionDialog, ControlsComeFromTheDeclarationAndOkChecksThem) {
  ActiveData data;
  data.NumSites = 200;
  DemoOptions options;
  OptionDialog dialog("DNA Polymorphism");
  BuildOptionDialog(dialog, options, data);

  auto edits = dialog.findChildren<QLineEdit*>();
  ASSERT_EQ(edits.size(), 3);  // from, to, window
  EXPECT_EQ(edits[0]->text(), "1");
  EXPECT_EQ(edits[1]->text(), "200");
  ASSERT_NE(dialog.findChild<QCheckBox*>("extra"), nullptr);
  EXPECT_EQ(dialog.findChild<QCheckBox*>("extra")->text(), "Compute Pi (Jukes and Cantor)");

  // A region beyond the last site is refused and the dialog stays.
  edits[1]->setText("201");
  QString warning;
  CloseNextWarning(&warning);
  dialog.accept();
  EXPECT_TRUE(dialog.LastOkRefused());
  EXPECT_EQ(warning, " Invalid Selection ");

  // A window above its limit is refused by the same range check as the command line's.
  edits[1]->setText("150");
  edits[2]->setText("51");
  CloseNextWarning(&warning);
  dialog.accept();
  EXPECT_TRUE(dialog.LastOkRefused());

  edits[2]->setText("25");
  dialog.findChild<QCheckBox*>("extra")->setChecked(true);
  dialog.findChildren<QRadioButton*>()[1]->setChecked(true);
  dialog.accept();
  EXPECT_FALSE(dialog.LastOkRefused());
  EXPECT_EQ(options.RegionTo, 150);
  EXPECT_EQ(options.Window, 25);
  EXPECT_TRUE(options.Extra);
  EXPECT_EQ(options.Policy, 2);
}

}  // namespace
}  // namespace ovelt
