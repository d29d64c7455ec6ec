#pragma once
// The Help menu: Contents opens the manual at its index in the help window, Search for Help
// opens it with the search field ready, and without a manual both say that the help is
// missing; Bug Reports and the Web Page open the browser ("Browser Error" when it cannot be
// started); Citation shows a plain window.

#include <functional>
#include <string>

namespace ovelt {

class MainWindow;

// Opens an address (a web page or a local file) in the system's browser; false on failure.
using UrlOpener = std::function<bool(const std::string& address)>;

// The system's opener (QDesktopServices).
[[nodiscard]] bool OpenWithSystem(const std::string& address);

// Registers contenido_Click, AyudaBuscar_Click, BugReports_Click, Citation_Click and
// WebPage_Click. Calling it again replaces them (tests pass their own opener).
void AddHelpHandlers(MainWindow& window, UrlOpener opener = OpenWithSystem);

}  // namespace ovelt
