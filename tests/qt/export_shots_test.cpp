// Pictures of the file-writing dialogs and the codon table editor on the example data, for a
// person to look at. Runs only when OVELT_SHOTS names a directory.

#include <gtest/gtest.h>

#include <QDialog>
#include <QPixmap>

#include <cstdlib>
#include <string>

#include "shell/workbench.h"
#include "support/scripted_platform.h"
#include "ui/qt/codon_table_editor.h"
#include "ui/qt/export_dialog.h"
#include "ui/qt/nexus_options_dialog.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;

const std::string kExample = std::string(OVELT_TEST_DATA) + "/../../examples/example.fas";

void Save(QWidget& widget, const std::string& dir, const std::string& name) {
  widget.show();
  if (!widget.testAttribute(Qt::WA_Resized)) widget.adjustSize();
  const std::string path = dir + "/exportdlg_" + name + ".png";
  EXPECT_TRUE(widget.grab().save(QString::fromStdString(path))) << path;
  widget.hide();
}

TEST(ExportShots, DialogsOnTheExampleData) {
  const char* dir = std::getenv("OVELT_SHOTS");
  if (dir == nullptr) GTEST_SKIP() << "OVELT_SHOTS is not set";
  ScriptedPlatform p;
  Workbench wb(p);
  ASSERT_TRUE(wb.OpenPath(kExample));

  ExportDialog choice;
  choice.SelectMenuIndex(3);
  Save(choice, dir, "export_choice");

  NexusOptionsDialog form2(wb.Data().Format, p);
  Save(form2, dir, "nexus_options");

  wb.Data().PrefTableName = "Drosophila_melanogaster";
  CodonTableEditor editor(wb.Data(), p);
  editor.resize(720, 640);
  Save(editor, dir, "codon_table");

  // Edition mode of a new table with three codons chosen.
  editor.AskName = [] { return std::optional<std::string>("Homo_sapiens"); };
  CodonChoice answer = CodonChoice::kPreferred;
  editor.AskCodon = [&answer](int) { return answer; };
  editor.EditNewOrClose();
  editor.ClickCodon(2);   // TTC preferred
  editor.ClickCodon(62);  // GGC preferred
  answer = CodonChoice::kUnknown;
  editor.ClickCodon(30);  // CGC unknown
  editor.resize(720, 660);
  Save(editor, dir, "codon_table_editing");

  TableNameDialog name(p);
  name.SetName("Homo_sapiens");
  Save(name, dir, "table_name");

  CodonStatusDialog status("TTC  F");
  Save(status, dir, "codon_status");
}

}  // namespace
}  // namespace ovelt
