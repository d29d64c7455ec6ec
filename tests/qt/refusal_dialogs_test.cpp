// The questions of the checks before a command ("Do you want to define them?") do what they ask
// on the desktop: Yes opens the dialog that defines what is missing, and the command goes on to
// its own dialog once it is defined.

#include <QApplication>
#include <QListWidget>
#include <QPushButton>

#include <cstdlib>
#include <optional>

#include "data_dialogs_fixture.h"
#include "ui/qt/coding_region_dialog.h"
#include "ui/qt/option_dialog.h"
#include "ui/qt/qt_platform.h"
#include "ui/qt/set_dialogs.h"

namespace ovelt::datadlg {
namespace {

// Acts on the modal dialog of type `Dialog` once it is up, however many other modal windows
// come and go before it: unlike OnNext, it can be set for a dialog that opens after another.
template <class Dialog>
void WhenUp(std::function<void(Dialog*)> act) {
  auto* timer = new QTimer;
  timer->setInterval(5);
  QObject::connect(timer, &QTimer::timeout, [timer, act] {
    if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
      timer->stop();
      timer->deleteLater();
      act(dialog);
    }
  });
  timer->start();
}

void SelectNumbers(QListWidget* list, const std::vector<int>& numbers) {
  list->clearSelection();
  for (int row = 0; row < list->count(); ++row) {
    const int number = list->item(row)->data(Qt::UserRole).toInt();
    if (std::find(numbers.begin(), numbers.end(), number) != numbers.end())
      list->item(row)->setSelected(true);
  }
}

QPushButton* Button(QWidget* dialog, const QString& text) {
  for (auto* button : dialog->findChildren<QPushButton*>())
    if (button->text() == text) return button;
  return nullptr;
}

// A new set of the sequences `numbers`, named `name`, as the user makes it in the dialog.
void AddSet(DefineSetsDialog* dialog, const QString& name, const std::vector<int>& numbers) {
  dialog->ChooseSet(0);
  SelectNumbers(dialog->Lists()->Left(), numbers);
  Button(dialog, "Include sequence/s ")->click();
  OnNext<SetNameDialog>([name](SetNameDialog* ask) {
    ask->Field()->setText(name);
    emit ask->Field()->textEdited(name);
    ask->accept();
  });
  dialog->AddButton()->click();
}

class RefusalDialogs : public DataDialogTest {
 protected:
  RefusalDialogs() {
    // The refusals open the dialogs through the platform, as the desktop's platform does.
    p.OnDialog = [this](const std::string& form) { return window.OpenNamedDialog(form); };
    Open(window, ExampleFasta());
  }
  MainWindow window{p};
};

TEST_F(RefusalDialogs, YesToTheSetsQuestionOpensTheSetsDialogAndTheCommandGoesOn) {
  p.Answers.push_back(MsgAnswer::kYes);
  WhenUp<DefineSetsDialog>([](DefineSetsDialog* dialog) {
    AddSet(dialog, "In", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    AddSet(dialog, "Out", {12});
    dialog->accept();
  });
  std::optional<QString> command_dialog;
  WhenUp<OptionDialog>([&command_dialog](OptionDialog* dialog) {
    command_dialog = dialog->windowTitle();
    dialog->reject();
  });
  window.Trigger("MenuFuLiOutgroupNew_Click");
  ASSERT_FALSE(p.Boxes.empty());
  EXPECT_EQ(p.Boxes[0].Text,
            "No Sequence Sets (Populations) defined !\nThe present analysis requires, at least, "
            "the definition of 2 Sets of Sequences. Do you want to define them?");
  EXPECT_EQ(p.DialogsShown, (std::vector<std::string>{"dlgDefPop"}));
  ASSERT_EQ(window.Bench().Data().SetCount(), 2);
  EXPECT_EQ(window.Bench().Data().SequenceSets[2].nombre(), "Out");
  // The sets stand: the command went on to its own dialog.
  ASSERT_TRUE(command_dialog.has_value());
  EXPECT_EQ(command_dialog->toStdString(), "Fu and Li's Tests with an Outgroup");
  EXPECT_EQ(window.Bench().Data().Analysis, 0);
}

TEST_F(RefusalDialogs, NoStopsTheCommandWithoutADialog) {
  p.Answers.push_back(MsgAnswer::kNo);
  window.Trigger("MenuFuLiOutgroupNew_Click");
  EXPECT_TRUE(p.DialogsShown.empty());
  EXPECT_EQ(window.Bench().Data().SetCount(), 0);
  EXPECT_EQ(window.Bench().Data().Analysis, 0);
}

TEST_F(RefusalDialogs, YesToTheCodingQuestionOpensTheCodingRegionDialog) {
  p.Answers.push_back(MsgAnswer::kYes);
  WhenUp<CodingRegionDialog>([this](CodingRegionDialog* dialog) {
    dialog->From()->setText("1");
    dialog->To()->setText("900");
    dialog->FirstPosition(1)->setChecked(true);
    p.Answers.push_back(MsgAnswer::kNo);  // no more regions
    dialog->Assign();
    dialog->accept();
  });
  // Codon usage bias checks for a coding region before its dialog.
  EXPECT_TRUE(window.Bench().BeginCommand(23));
  window.Bench().EndCommand();
  EXPECT_EQ(p.Boxes.front().Text,
            "No Protein Coding Region Defined !\nDo you want to define the Protein Coding Region "
            "now ?");
  EXPECT_EQ(p.DialogsShown, (std::vector<std::string>{"Form14"}));
  EXPECT_GE(window.Bench().Data().Format.CodingAssigned, 1);
  EXPECT_EQ(window.Bench().Data().CodonPosition[4], 1);
}

TEST_F(RefusalDialogs, ACancelledDialogStopsTheCommand) {
  p.Answers.push_back(MsgAnswer::kYes);
  WhenUp<CodingRegionDialog>([](CodingRegionDialog* dialog) { dialog->reject(); });
  EXPECT_FALSE(window.Bench().BeginCommand(23));
  EXPECT_EQ(p.DialogsShown, (std::vector<std::string>{"Form14"}));
  EXPECT_LT(window.Bench().Data().Format.CodingAssigned, 1);
}

// The desktop's platform hands the dialogs' names to the main window.
TEST(QtPlatformDialogs, TheMainWindowOpensTheDialogsTheLogicNames) {
  testing::TempDir home;
  const char* old_home = std::getenv("OVELT_HOME");
  const std::string kept = old_home != nullptr ? old_home : "";
  ::setenv("OVELT_HOME", home.Path().string().c_str(), 1);
  {
    QtPlatform platform;
    MainWindow window(platform, &platform);
    ASSERT_TRUE(window.Bench().OpenPath(ExampleFasta()));
    window.Refresh();
    QString opened;
    OnNextDialog([&opened](QDialog* dialog) {
      opened = dialog->windowTitle();
      dialog->reject();
    });
    EXPECT_FALSE(platform.ShowDialog("dlgDefPop"));
    EXPECT_EQ(opened, "Define Sequence Sets");
    OnNextDialog([&opened](QDialog* dialog) {
      opened = dialog->windowTitle();
      dialog->reject();
    });
    EXPECT_FALSE(platform.ShowDialog("Form14"));
    EXPECT_EQ(opened, "Protein Coding Regions ");
    EXPECT_FALSE(platform.ShowDialog("NoSuchForm"));
  }
  if (old_home != nullptr) {
    ::setenv("OVELT_HOME", kept.c_str(), 1);
  } else {
    ::unsetenv("OVELT_HOME");
  }
}

}  // namespace
}  // namespace ovelt::datadlg
