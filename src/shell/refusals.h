#pragma once
// The checks made before a command's dialog opens, each with the system's own words. A check
// either passes or stops the command; some offer to define what is missing first.

#include <string>

#include "command/command_facts.h"
#include "core/active_data.h"
#include "platform/platform.h"

namespace ovelt {

// The lines "Input data file: " and the file's path that file messages end with.
[[nodiscard]] std::string InputFileLine(const ActiveData& data);

// True when the check passes (possibly after the user defined what was missing).
bool PassesCheck(Check check, const CommandFacts& facts, ActiveData& data, Platform& platform);

// The named refusals; each returns 1 when the command must stop, 0 when it may go on.
// `question`: the command's own words for the question, empty for the usual ones.
int MensajeNoPobsDefined(const std::string& question, ActiveData& data, Platform& platform);
int MensajeNoPobsDefined2(ActiveData& data, Platform& platform);
int MensajeNoCodingRegionDefined(ActiveData& data, Platform& platform);
int MensajeNoPrefUnPrefTablaDefined(ActiveData& data, Platform& platform);

// Number of sets that hold at least one included sequence (`only_active`: active sets only).
[[nodiscard]] int SetsWithIncludedSequences(const ActiveData& data, bool only_active);

}  // namespace ovelt
