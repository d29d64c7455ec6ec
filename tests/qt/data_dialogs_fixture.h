#pragma once
// What the tests of the Data menu's dialogs share: a main window on a scripted platform, the
// example alignment, a real NEXUS file of the reader corpus with two sequence sets added, and
// a helper that acts on the next modal dialog.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/main_window.h"

namespace ovelt::datadlg {

// Runs `act` on the modal dialog that the next call opens, once it is up.
inline void OnNextDialog(std::function<void(QDialog*)> act) {
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(dialog);
  });
}

template <class Dialog>
void OnNext(std::function<void(Dialog*)> act) {
  OnNextDialog([act](QDialog* dialog) {
    auto* typed = qobject_cast<Dialog*>(dialog);
    ASSERT_NE(typed, nullptr);
    act(typed);
  });
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

inline std::string ExampleFasta() {
  return std::filesystem::path(OVELT_TEST_DATA "/../../examples/example.fas")
      .lexically_normal()
      .string();
}

class DataDialogTest : public ::testing::Test {
 protected:
  DataDialogTest() { p.ProgramDir = dir.Path().string(); }

  // Four anthropoid sequences of 50 sites (BioPerl's test alignment, RNA) with the sets
  // apes = Pan, Gorilla and others = Homo, Pongo.
  std::string NexusWithSets() const {
    std::string bytes = ReadBytes(OVELT_TEST_DATA "/corpus/nexus/bioperl_testaln.nexus");
    // The file ends inside an unterminated ASSUMPTIONS block: the sets go before it.
    const std::string sets = "begin sets;\n  taxset apes = 2 3;\n  taxset others = 1 4;\nend;\n";
    bytes.insert(bytes.find("begin assumptions;"), sets);
    return dir.Write("anthropoids.nex", bytes);
  }

  // Opens `path` in the window as the open command does.
  void Open(MainWindow& window, const std::string& path) {
    ASSERT_TRUE(window.Bench().OpenPath(path));
    window.Refresh();
  }

  testing::TempDir dir;
  testing::ScriptedPlatform p;
};

}  // namespace ovelt::datadlg
