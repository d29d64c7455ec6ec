#include "analyses/polymorphism/neutrality/neutrality_command_steps.h"

#include <exception>

#include "command/command_failure.h"
#include "output/output_channel.h"

namespace ovelt {

void AddWindowTable(CommandReport& report, const std::string& file_name,
                    const std::vector<std::string>& titles,
                    const std::function<std::vector<std::vector<std::string>>()>& rows,
                    const std::function<GraphData()>& make_graph) {
  try {
    report.Grid1.ColumnTitles = titles;
    report.Grid1.Rows = rows();
    report.GridArray = "sliding_window.windows";
    report.Graph = make_graph();
  } catch (const std::exception&) {
    FailTooBig("Input data file: " + file_name + "\n" + kOutputTooBig + "\n" + kIncreaseStep);
  }
  report.ShowKinds = {kResultAddGraph, kResultTextAndGrid};
}

}  // namespace ovelt
