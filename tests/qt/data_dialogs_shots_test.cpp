// Pictures of the Data menu's dialogs on real data, for a person to look at. Runs only when
// OVELT_SHOTS names a directory; the pictures are datadlg_<dialog>.png there.

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

#include <cstdlib>

#include "data_dialogs_fixture.h"
#include "ui/qt/coding_region_dialog.h"
#include "ui/qt/format_dialog.h"
#include "ui/qt/genetic_code_dialog.h"
#include "ui/qt/set_dialogs.h"

namespace ovelt::datadlg {
namespace {

class DataDialogShots : public DataDialogTest {
 protected:
  // The primate mitochondrial alignment of MrBayes's examples (12 x 898) with three sets.
  std::string Primates() const {
    std::string bytes = ReadBytes(OVELT_TEST_DATA "/corpus/nexus/mrbayes_primates.nex");
    bytes += "\nbegin sets;\n  taxset hominoids = 3-7;\n  taxset macaques = 8-11;\n"
             "  taxset others = 1 2 12;\nend;\n";
    return dir.Write("primates.nex", bytes);
  }

  void Save(QWidget* widget, const std::string& name) {
    widget->show();
    QApplication::processEvents();
    const QString path = QString::fromStdString(shots_ + "/datadlg_" + name + ".png");
    EXPECT_TRUE(widget->grab().save(path)) << path.toStdString();
    widget->hide();
  }

  void SetUp() override {
    const char* shots = std::getenv("OVELT_SHOTS");
    if (shots == nullptr || *shots == '\0') GTEST_SKIP() << "OVELT_SHOTS is not set";
    shots_ = shots;
  }

  std::string shots_;
};

TEST_F(DataDialogShots, EachDialogOnRealData) {
  MainWindow window(p);
  Open(window, Primates());
  Workbench& wb = window.Bench();
  {
    std::vector<bool> ticks(13, true);
    ticks[0] = false;
    ticks[2] = false;  // Lemur excluded, to show the mark
    ASSERT_TRUE(wb.IncludeSequences(ticks, 1));
  }
  {
    DefineSetsDialog dialog(wb, &window);
    dialog.ChooseSet(1);
    dialog.Lists()->Left()->item(0)->setSelected(true);
    Save(&dialog, "define_sets");
  }
  {
    wb.Data().SequenceSets[3].activePop(0);
    ActivePopulationsDialog dialog(wb, &window);
    Save(&dialog, "populations");
  }
  {
    CodingRegionDialog dialog(wb, &window);
    dialog.From()->setText("10");
    dialog.FirstPosition(2)->setChecked(true);
    Save(&dialog, "coding_regions");
  }
  {
    GeneticCodeDialog dialog(wb, &window);
    dialog.Codes()->setCurrentIndex(1);
    Save(&dialog, "genetic_code");
  }
  {
    FormatDialog dialog(wb, &window);
    dialog.Location(6)->setChecked(true);
    dialog.State(1)->setChecked(true);
    Save(&dialog, "format");
  }
}

}  // namespace
}  // namespace ovelt::datadlg
