#pragma once
// "Print Output" of the calculator windows: the text of the result that stands (opening lines,
// title block and report, as a saved output file has them) on a printer, in "Courier New", or
// "Courier" where that face is missing. A printer that cannot be opened gets "Printer Error".

#include <functional>
#include <string>

class QPrinter;

namespace ovelt {

class Platform;

inline constexpr const char* kPrinterErrorText = "Printer Error";

// Lets the user pick the printer; false when cancelled. Tests replace it with a PDF file.
using PrinterChooser = std::function<bool(QPrinter&)>;

// The system's print dialog, as a PrinterChooser.
[[nodiscard]] bool ChoosePrinterByDialog(QPrinter& printer);

// Prints CR LF text line by line, page after page. False when the printer could not be opened.
bool PrintReportText(QPrinter& printer, const std::string& crlf_text);

// Asks for a printer and prints; the failure box goes through `platform`.
void PrintOutputText(Platform& platform, const PrinterChooser& choose, const std::string& text);

}  // namespace ovelt
