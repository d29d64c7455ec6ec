#include "ui/cli/command_listing.h"

#include <algorithm>

#include "shell/command_registry.h"

namespace ovelt {

namespace {

std::string Pad(std::string text, size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

// Menu texts carry "&" before their access key; the listing shows them as the menu does.
std::string WithoutAccessMark(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
  return text;
}

}  // namespace

std::string CommandListing() {
  std::string text = Pad("No.", 6) + Pad("Command-line name", 26) + Pad("Title", 52) +
                     Pad("Checks before the dialog", 52) + "Dialog\n";
  for (const CommandEntry& entry : Registry()) {
    const CommandFacts& row = entry.Facts;
    text += Pad(std::to_string(row.Number()), 6) + Pad(row.CliName, 26) + Pad(row.Title, 52) +
            Pad(row.ChecksText, 52) + row.Dialog + "\n";
  }
  return text;
}

std::string CommandHelp(const CommandFacts& row) {
  return "Command " + std::to_string(row.Number()) + ": " + row.Title + "\n" +
         "  Menu:                     " + row.Menu + " > " + WithoutAccessMark(row.MenuText) +
         "  (handler " + row.Handler + ")\n" + "  Command-line name:         " + row.CliName +
         "\n" + "  Checks before the dialog:  " + row.ChecksText + "\n" +
         "  Dialog:                    " + row.Dialog + "\n";
}

}  // namespace ovelt
