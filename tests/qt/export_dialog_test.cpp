#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>

#include <functional>

#include "core/text_case.h"
#include "formats/data_file_writer.h"
#include "formats/read_file.h"
#include "output/output_channel.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/export_dialog.h"
#include "ui/qt/main_window.h"
#include "ui/qt/nexus_options_dialog.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::ScriptedPlatform;
using testing::TempDir;

const std::string kExample = std::string(OVELT_TEST_DATA) + "/../../examples/example.fas";

// Runs `act` on the modal dialog that the next call opens, once it is up.
void OnNextDialog(std::function<void(QDialog*)> act) {
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(dialog);
  });
}

template <class W>
W* Child(QDialog* dialog, const char* name) {
  W* widget = dialog->findChild<W*>(name);
  EXPECT_NE(widget, nullptr) << name;
  return widget;
}

class ExportDialogTest : public ::testing::Test {
 protected:
  ExportDialogTest() { p.ProgramDir = dir.Path().string(); }

  // Chooses the writer `key` in the format dialog and confirms it.
  void ChooseWriter(const std::string& key) {
    OnNextDialog([key](QDialog* dialog) {
      Child<QRadioButton>(dialog, key.c_str())->setChecked(true);
      dialog->accept();
    });
  }

  // The sequences of `loaded` must be those of the included layer, in order.
  void ExpectSameSequences(const LoadedFile& loaded, const ActiveData& d) {
    ASSERT_EQ(loaded.NumSeqs(), d.NumSeqs);
    ASSERT_EQ(loaded.NumSites, d.NumSites);
    for (int32_t s = 1; s <= d.NumSeqs; ++s) {
      EXPECT_EQ(TrimBlanks(loaded.Names[static_cast<size_t>(s)]),
                TrimBlanks(d.IncNames[static_cast<size_t>(s)]));
      for (int32_t site = 1; site <= d.NumSites; ++site)
        ASSERT_EQ(loaded.Matrix.at(site, s), d.IncMatrix.at(site, s))
            << "sequence " << s << " site " << site;
    }
  }

  TempDir dir;
  ScriptedPlatform p;
};

TEST_F(ExportDialogTest, EachWriterWritesAFileThatReadsBackTheSame) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  const ActiveData& d = window.Bench().Data();
  ASSERT_EQ(d.NumSeqs, 12);
  ASSERT_TRUE(window.ActionFor("export_Click")->isVisible());
  const char* const extensions[] = {"fas", "meg", "nbr", "nex", "phy"};
  for (const WriterKind& kind : WriterKinds()) {
    SCOPED_TRACE(kind.Key);
    const std::string path = dir.File("out." + std::string(extensions[kind.MenuIndex]));
    p.SaveNames.push_back(path);
    ChooseWriter(kind.Key);
    window.Trigger("export_Click");
    ASSERT_FALSE(p.SaveDialogs.empty());
    EXPECT_EQ(p.SaveDialogs.back().Title, "Save/Export File:  example.fas  As " + kind.MenuText);
    EXPECT_EQ(p.SaveDialogs.back().Filter, kind.Filter);
    EXPECT_EQ(p.SaveDialogs.back().DefaultName, kind.DefaultName);
    // "Saving..." while writing, the idle text once done.
    ASSERT_GE(p.StatusTexts.size(), 2u);
    EXPECT_EQ(p.StatusTexts[p.StatusTexts.size() - 2], "Saving...");
    EXPECT_EQ(p.StatusTexts.back(), kIdleStatus);
    const LoadedFile loaded = ReadDataFile(path, p);
    EXPECT_EQ(loaded.FileKind, kind.MenuIndex == kMegaWriterIndex    ? 0
                               : kind.MenuIndex == kNbrfWriterIndex  ? 1
                               : kind.MenuIndex == kNexusWriterIndex ? 2
                               : kind.MenuIndex == kPhylipWriterIndex ? 3
                                                                      : 4);
    ExpectSameSequences(loaded, d);
  }
  EXPECT_EQ(p.Boxes.size(), 0u);  // no failure, no notice
  EXPECT_EQ(window.StatusText().toStdString(), kIdleStatus);
}

TEST_F(ExportDialogTest, CancelledChoiceOrSaveWritesNothing) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  OnNextDialog([](QDialog* dialog) { dialog->reject(); });
  window.Trigger("export_Click");
  EXPECT_TRUE(p.SaveDialogs.empty());
  ChooseWriter("phylip");
  window.Trigger("export_Click");  // the save dialog answers Cancel
  ASSERT_EQ(p.SaveDialogs.size(), 1u);
  EXPECT_TRUE(std::filesystem::is_empty(dir.Path()) ||
              !std::filesystem::exists(dir.File("out.phy")));
}

TEST_F(ExportDialogTest, ExcludedSequencesAreAnnouncedAndLeftOut) {
  MainWindow window(p);
  Workbench& wb = window.Bench();
  ASSERT_TRUE(wb.OpenPath(kExample));
  std::vector<bool> ticks(13, true);
  ticks[0] = false;
  ticks[3] = false;  // seq3 out
  ASSERT_TRUE(wb.IncludeSequences(ticks, wb.Data().GapsInSets));
  ASSERT_EQ(wb.Data().NumSeqs, 11);

  // Cancel at the notice: no save dialog.
  ChooseWriter("fasta");
  window.Trigger("export_Click");
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text,
            "The active Data File contains only 11 sequences. Ovelt will generate a Data File "
            "with 11 sequences.");
  EXPECT_TRUE(p.SaveDialogs.empty());

  p.Answers.push_back(MsgAnswer::kOk);
  p.SaveNames.push_back(dir.File("eleven.fas"));
  ChooseWriter("fasta");
  window.Trigger("export_Click");
  const LoadedFile loaded = ReadDataFile(dir.File("eleven.fas"), p);
  ExpectSameSequences(loaded, wb.Data());
  for (int32_t s = 1; s <= loaded.NumSeqs(); ++s)
    EXPECT_NE(TrimBlanks(loaded.Names[static_cast<size_t>(s)]), "seq3");
}

TEST_F(ExportDialogTest, AFailedWriteSaysSo) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  p.SaveNames.push_back(dir.File("no_such_dir/out.fas"));
  ChooseWriter("fasta");
  window.Trigger("export_Click");
  ASSERT_EQ(p.Boxes.size(), 1u);
  EXPECT_EQ(p.Boxes[0].Text, "Error in saving file");
}

// ---- Form2 ----------------------------------------------------------------------------------

TEST_F(ExportDialogTest, Form2OkStoresTheOptionsOfTheFile) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  FormatAttributes& f = window.Bench().Data().Format;
  ASSERT_EQ(f.LineDelimiter, 1);
  OnNextDialog([](QDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Nexus File Format. Options");
    // A version not yet chosen shows as NEXUS v. 1.
    EXPECT_TRUE(Child<QRadioButton>(dialog, "version1")->isChecked());
    Child<QRadioButton>(dialog, "oldVersion")->setChecked(true);
    Child<QRadioButton>(dialog, "lf")->setChecked(true);
    Child<QCheckBox>(dialog, "useMatch")->setChecked(false);
    auto* gap = Child<QLineEdit>(dialog, "gapSymbol");
    gap->selectAll();
    gap->insert("~");
    Child<QSpinBox>(dialog, "blockLength")->setValue(25);
    dialog->accept();
  });
  window.Trigger("MenuSalvarData_Click");
  EXPECT_EQ(f.NexusVersion, 1);
  EXPECT_EQ(f.LineDelimiter, 3);
  EXPECT_EQ(f.MatchSymbolOn, 0);
  EXPECT_EQ(f.GapSymbol, '~');
  EXPECT_EQ(f.BlockLength, 25);
  EXPECT_TRUE(p.Boxes.empty());

  // The NEXUS writer follows them: LF line ends, a DATA block, "~" for gaps.
  p.SaveNames.push_back(dir.File("opt.nex"));
  ChooseWriter("nexus");
  window.Trigger("export_Click");
  const std::string bytes = ReadBytes(dir.File("opt.nex"));
  EXPECT_EQ(bytes.find('\r'), std::string::npos);
  EXPECT_NE(bytes.find("BEGIN DATA;\n"), std::string::npos);
  EXPECT_NE(bytes.find(" GAP=~"), std::string::npos);
  EXPECT_EQ(bytes.find("MATCHCHAR"), std::string::npos);
}

TEST_F(ExportDialogTest, Form2CancelAndRefusedOkChangeNothing) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  FormatAttributes& f = window.Bench().Data().Format;
  const FormatAttributes before = f;
  OnNextDialog([](QDialog* dialog) {
    Child<QRadioButton>(dialog, "cr")->setChecked(true);
    Child<QSpinBox>(dialog, "blockLength")->setValue(7);
    dialog->reject();
  });
  window.Trigger("MenuSalvarData_Click");
  EXPECT_EQ(f.LineDelimiter, before.LineDelimiter);
  EXPECT_EQ(f.BlockLength, before.BlockLength);

  OnNextDialog([this](QDialog* dialog) {
    auto* form2 = qobject_cast<NexusOptionsDialog*>(dialog);
    ASSERT_NE(form2, nullptr);
    Child<QSpinBox>(dialog, "blockLength")->setValue(0);
    form2->accept();
    EXPECT_TRUE(form2->LastOkRefused());
    EXPECT_TRUE(form2->isVisible());
    EXPECT_EQ(p.LastBox(), "The minimum number of nucleotides per block is 1");
    Child<QSpinBox>(dialog, "blockLength")->setValue(30);
    Child<QLineEdit>(dialog, "missingSymbol")->clear();
    form2->accept();
    EXPECT_TRUE(form2->LastOkRefused());
    EXPECT_EQ(p.Boxes.back().Text, "Missing data");
    EXPECT_EQ(p.Boxes.back().Title, "Invalid Selection ");
    dialog->reject();
  });
  window.Trigger("MenuSalvarData_Click");
  EXPECT_EQ(p.Boxes.size(), 2u);
  EXPECT_EQ(f.BlockLength, before.BlockLength);
  EXPECT_EQ(f.MissingSymbol, before.MissingSymbol);
}

TEST_F(ExportDialogTest, Form2BlocksReservedSymbolsAtTypingAndDefaultResets) {
  FormatAttributes f;
  f.LineDelimiter = 2;
  f.GapSymbol = '~';
  f.Interleaved = 0;
  NexusOptionsDialog dialog(f, p);
  auto* gap = Child<QLineEdit>(&dialog, "gapSymbol");
  for (const char* typed : {"(", ";", "*", "a", "T", "u", "<", "`", "'", "\\"}) {
    gap->clear();
    gap->insert(typed);
    EXPECT_EQ(gap->text().toStdString(), "") << typed;
  }
  gap->clear();
  gap->insert("#");
  gap->insert("x");  // one character only
  EXPECT_EQ(gap->text().toStdString(), "#");
  Child<QPushButton>(&dialog, "default")->click();
  const NexusSaveOptions shown = dialog.Options();
  const NexusSaveOptions defaults = DefaultNexusSaveOptions();
  EXPECT_EQ(shown.LineDelimiter, 1);
  EXPECT_EQ(shown.GapSymbol, "-");
  EXPECT_EQ(shown.Interleaved, defaults.Interleaved);
  EXPECT_EQ(shown.BlockLength, defaults.BlockLength);
  EXPECT_EQ(f.LineDelimiter, 2);  // only OK stores
}

// ---- Update NEXUS Data File ------------------------------------------------------------------

TEST_F(ExportDialogTest, UpdateIsOnlyForNexusFilesAndItsCaptionNamesTheFile) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(kExample));
  QAction* update = window.ActionFor("MenuUpdateNEXUS_Click");
  ASSERT_NE(update, nullptr);
  EXPECT_TRUE(update->isVisible());
  EXPECT_FALSE(update->isEnabled());
  EXPECT_EQ(update->text(), "Update NEXUS Data File");
}

TEST_F(ExportDialogTest, UpdateRewritesTheOpenNexusFile) {
  MainWindow window(p);
  Workbench& wb = window.Bench();
  ASSERT_TRUE(wb.OpenPath(kExample));
  // A NEXUS copy of the example, written through the window, is the file to update.
  const std::string nexus = dir.File("data.nex");
  p.SaveNames.push_back(nexus);
  ChooseWriter("nexus");
  window.Trigger("export_Click");
  p.Answers.push_back(MsgAnswer::kYes);
  window.Trigger("del_Click");
  ASSERT_TRUE(wb.OpenPath(nexus));
  window.Refresh();
  QAction* update = window.ActionFor("MenuUpdateNEXUS_Click");
  EXPECT_TRUE(update->isEnabled());
  EXPECT_EQ(update->text().toStdString(), "Update NEXUS Data File:  data.nex");

  // Cancel at the question leaves the file as it was.
  const std::string before = ReadBytes(nexus);
  wb.Data().Format.LineDelimiter = 3;
  window.Trigger("MenuUpdateNEXUS_Click");
  ASSERT_FALSE(p.Boxes.empty());
  EXPECT_EQ(p.Boxes.back().Text, nexus + " ?");
  EXPECT_EQ(p.Boxes.back().Title, "Careful!");
  EXPECT_EQ(ReadBytes(nexus), before);

  p.Answers.push_back(MsgAnswer::kOk);
  window.Trigger("MenuUpdateNEXUS_Click");
  const std::string after = ReadBytes(nexus);
  EXPECT_NE(after, before);
  EXPECT_EQ(after.find('\r'), std::string::npos);  // the new line ends
  const LoadedFile loaded = ReadDataFile(nexus, p);
  ExpectSameSequences(loaded, wb.Data());
  EXPECT_EQ(window.StatusText().toStdString(), kIdleStatus);
}

TEST_F(ExportDialogTest, UpdateWithExcludedSequencesAsksFirst) {
  MainWindow window(p);
  Workbench& wb = window.Bench();
  ASSERT_TRUE(wb.OpenPath(kExample));
  const std::string nexus = dir.File("part.nex");
  p.SaveNames.push_back(nexus);
  ChooseWriter("nexus");
  window.Trigger("export_Click");
  p.Answers.push_back(MsgAnswer::kYes);
  window.Trigger("del_Click");
  ASSERT_TRUE(wb.OpenPath(nexus));
  std::vector<bool> ticks(13, true);
  ticks[0] = false;
  ticks[12] = false;
  ASSERT_TRUE(wb.IncludeSequences(ticks, wb.Data().GapsInSets));
  window.Refresh();
  const std::string before = ReadBytes(nexus);
  const size_t boxes = p.Boxes.size();

  p.Answers.push_back(MsgAnswer::kOk);      // "... ?"
  p.Answers.push_back(MsgAnswer::kCancel);  // the notice
  window.Trigger("MenuUpdateNEXUS_Click");
  ASSERT_EQ(p.Boxes.size(), boxes + 2);
  EXPECT_EQ(p.Boxes.back().Text,
            "The active Data File contains only 11 sequences. Ovelt will update the part.nex "
            "Data File with only 11 sequences.");
  EXPECT_EQ(ReadBytes(nexus), before);

  p.Answers.push_back(MsgAnswer::kOk);
  p.Answers.push_back(MsgAnswer::kOk);
  window.Trigger("MenuUpdateNEXUS_Click");
  const LoadedFile loaded = ReadDataFile(nexus, p);
  EXPECT_EQ(loaded.NumSeqs(), 11);
  ExpectSameSequences(loaded, wb.Data());
}

}  // namespace
}  // namespace ovelt
