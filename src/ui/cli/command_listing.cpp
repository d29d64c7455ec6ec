#include "ui/cli/command_listing.h"

#include <algorithm>

#include "shell/command_table.h"

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
  for (const CommandRow& row : CommandTable()) {
    text += Pad(std::to_string(row.number), 6) + Pad(row.cli_name, 26) + Pad(row.title, 52) +
            Pad(row.checks_text, 52) + row.dialog + "\n";
  }
  return text;
}

std::string CommandHelp(const CommandRow& row) {
  return "Command " + std::to_string(row.number) + ": " + row.title + "\n" +
         "  Menu:                     " + row.menu + " > " + WithoutAccessMark(row.menu_text) +
         "  (handler " + row.handler + ")\n" +
         "  Command-line name:         " + row.cli_name + "\n" +
         "  Checks before the dialog:  " + row.checks_text + "\n" +
         "  Dialog:                    " + row.dialog + "\n";
}

}  // namespace ovelt
