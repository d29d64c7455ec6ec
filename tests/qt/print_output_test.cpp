#include <gtest/gtest.h>

#include <QAction>
#include <QPrinter>

#include <filesystem>
#include <fstream>

#include "output/report_text.h"
#include "shell/command_registry.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/main_window.h"
#include "ui/qt/print_output.h"
#include "ui/qt/print_text.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

std::string Head(const std::string& path, size_t n) {
  std::ifstream in(path, std::ios::binary);
  std::string bytes(n, '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(n));
  bytes.resize(static_cast<size_t>(in.gcount()));
  return bytes;
}

void ShowReport(OutputChannel& channel, const std::string& text) {
  channel.ResetOutputs();
  channel.ResultCode = 2;
  channel.Labels = FindEntry(CommandId::kDnaPolymorphism)->Facts.Labels;  // as the runner sets
  channel.AppendText(text);
  channel.ShowResult(kResultTextOnly);
}

TEST(PrintOutput, TextOfThePrintoutIsTheSavedOpeningTitleAndReport) {
  ScriptedPlatform p;
  OutputChannel channel(p);
  ShowReport(channel, " Number of sites: 10\r\n");
  const std::string expected = CommonOpening(p.Clock) + "DNA Polymorphism \r\n" +
                               " ----------------\r\n" + " Number of sites: 10\r\n" + "\r\n";
  EXPECT_EQ(PrintableText(channel, p.Clock), expected);
  // The saved file of the same result holds the same bytes.
  EXPECT_EQ(PrintableText(channel, p.Clock), channel.SavedFileText());
}

TEST(PrintOutput, FinalOnlyKeepsTheLastRowsOfALongGrid) {
  ScriptedPlatform p;
  OutputChannel channel(p);
  channel.ResetOutputs();
  channel.ResultCode = 2;
  channel.Labels = FindEntry(CommandId::kDnaPolymorphism)->Facts.Labels;
  for (int i = 1; i <= 250; ++i) channel.Grid1.Rows.push_back({"row" + std::to_string(i)});
  channel.ShowResult(kResultGridOnly);
  p.Answers.push_back(MsgAnswer::kYes);
  ASSERT_TRUE(channel.AskPrintFinalOnly(250));
  EXPECT_EQ(p.LastBox(),
            "Output too big. There are 250 rows of data !!!\nDo you want to print only the final "
            "results?");
  const std::string text = PrintableText(channel, p.Clock);
  // Rows 51..250 are printed, the first 50 are not.
  EXPECT_EQ(text.find("row50\r\n"), std::string::npos);
  EXPECT_NE(text.find("row51\r\n"), std::string::npos);
  EXPECT_NE(text.find("row250\r\n"), std::string::npos);
  channel.PrintFinalOnly = 0;
  EXPECT_NE(PrintableText(channel, p.Clock).find("row1\r\n"), std::string::npos);
}

TEST(PrintOutput, PrintsToAPdfFile) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  std::string report;
  for (int i = 1; i <= 150; ++i) report += " Line " + std::to_string(i) + " of the report\r\n";
  ShowReport(window.Bench().Output(), report);
  const std::string pdf = (dir.Path() / "out.pdf").string();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(pdf));
  ASSERT_TRUE(PrintOutputTo(window, printer));
  EXPECT_TRUE(p.Boxes.empty());
  ASSERT_TRUE(std::filesystem::exists(pdf));
  EXPECT_EQ(Head(pdf, 4), "%PDF");
  // 150 lines take more than one page; a PDF of text pages is some kilobytes.
  EXPECT_GT(std::filesystem::file_size(pdf), 2000U);
}

TEST(PrintOutput, APrinterThatCannotOpenSaysPrinterError) {
  TempDir dir;
  ScriptedPlatform p;
  p.ProgramDir = dir.Path().string();
  MainWindow window(p);
  ShowReport(window.Bench().Output(), " x\r\n");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString((dir.Path() / "no" / "such" / "x.pdf").string()));
  EXPECT_FALSE(PrintOutputTo(window, printer));
  EXPECT_EQ(p.LastBox(), "Printer Error");
}

TEST(PrintOutput, OneProgramPrinterAndTheMenuEntries) {
  ScriptedPlatform p;
  MainWindow window(p);
  EXPECT_EQ(&ProgramPrinter(window), &ProgramPrinter(window));
  EXPECT_TRUE(PrintFontFamily() == "Courier New" || PrintFontFamily() == "Courier");
  ASSERT_NE(window.ActionFor("printout_Click"), nullptr);
  EXPECT_TRUE(window.ActionFor("printout_Click")->isVisible());
  EXPECT_EQ(window.ActionFor("printout_Click")->text(), "&Print Output...");
  EXPECT_EQ(window.ActionFor("PageSetup_Click")->text(), "Pa&ge Setup...");
  EXPECT_TRUE(window.ActionFor("PageSetup_Click")->isEnabled());
  EXPECT_FALSE(window.ActionFor("printout_Click")->isEnabled());
}

}  // namespace
}  // namespace ovelt
