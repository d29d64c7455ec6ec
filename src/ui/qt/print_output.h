#pragma once
// Printing the output and the page setup of the program's one printer. The printer belongs to
// the main window and keeps its page setup for the whole session; a PDF file is one of the
// printer's destinations (chosen in the print dialog, or set by the caller).

#include <string>

class QPrinter;

namespace ovelt {

class MainWindow;

inline constexpr const char* kPrinterError = "Printer Error";

// The program's one printer, made on first use and owned by `window`.
[[nodiscard]] QPrinter& ProgramPrinter(MainWindow& window);

// The family of the printed text: "Courier New", or "Courier" when the system lacks it
// (looked up once).
[[nodiscard]] const std::string& PrintFontFamily();

// Paints `text` (lines ended by CR LF or LF) on `printer`, page after page, from 1.5 cm below
// the top of the printable area. False when the printer cannot be opened.
[[nodiscard]] bool PrintTextTo(QPrinter& printer, const std::string& text);

// Prints the current output on `printer` without a dialog; on failure shows "Printer Error"
// and returns false. Asks first, through the channel, about a grid of more than 200 rows.
bool PrintOutputTo(MainWindow& window, QPrinter& printer);

// "&Print Output...": the print dialog on the program's printer, then PrintOutputTo.
void PrintOutput(MainWindow& window);

// "Pa&ge Setup...": the page setup dialog on the program's printer.
void PageSetup(MainWindow& window);

// Registers printout_Click and PageSetup_Click.
void AddPrintHandlers(MainWindow& window);

}  // namespace ovelt
