#include "ui/cli/option_flags.h"

#include "shell/workbench.h"

namespace ovelt {

bool ResolveOptionFlags(const PendingOptionFlags& pending, Workbench& wb) {
  ActiveData& d = wb.Data();
  if (pending.region_from != nullptr && *pending.region_from == 0) *pending.region_from = 1;
  if (pending.region_to != nullptr && *pending.region_to == 0) *pending.region_to = d.NumSites;
  for (const auto& set : pending.sets) {
    if (set.name->empty()) continue;
    int16_t found = 0;
    for (int32_t s = 1; s <= d.SetCount(); ++s)
      if (d.SequenceSets[static_cast<size_t>(s)].nombre() == *set.name)
        found = static_cast<int16_t>(s);
    if (found == 0) {
      wb.Ui().MessageBox("No sequence set is named \"" + *set.name + "\" (--" + set.key + ")",
                         MsgIcon::kWarning);
      return false;
    }
    *set.index = found;
  }
  return true;
}

}  // namespace ovelt
