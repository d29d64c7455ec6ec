#include "ui/qt/print_text.h"

#include "output/report_text.h"
#include "output/too_big_prompt.h"

namespace ovelt {

std::string PrintableText(const OutputChannel& channel, const Platform::DateTime& when) {
  const std::string& title = channel.Labels.Title;
  std::string text =
      CommonOpening(when) +
      TitleBlock(title, channel.TextShown != 0 ? channel.TextBuffer : channel.HeaderBlock);
  if (channel.GridShown != 0 && channel.ResultCode != kTrelmoResultCode) {
    const auto rows = static_cast<int64_t>(channel.Grid1.Rows.size());
    if (channel.PrintFinalOnly != 0 && rows > kPrintPromptRows) {
      OutputGrid last = channel.Grid1;
      last.Rows.erase(last.Rows.begin(), last.Rows.end() - kPrintPromptRows);
      text += GridAsText(channel.Labels, channel.GridTextHead(), last);
    } else {
      text += GridAsText(channel.Labels, channel.GridTextHead(), channel.Grid1);
    }
  }
  return text;
}

}  // namespace ovelt
