#pragma once
// The text of "Print Output": the opening lines of a saved file, the title block with the
// report (or the report head when no text stands), and the grid as text. Before a grid of more
// than 200 rows the channel asks whether only the final results are to be printed
// (`PrintFinalOnly`); then only the grid's last 200 rows are printed. No window code here.

#include <string>

#include "output/output_channel.h"
#include "platform/platform.h"

namespace ovelt {

[[nodiscard]] std::string PrintableText(const OutputChannel& channel,
                                        const Platform::DateTime& when);

}  // namespace ovelt
