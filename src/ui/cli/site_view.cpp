#include "ui/cli/site_view.h"

#include <CLI/CLI.hpp>

#include <array>

#include "core/region_check.h"
#include "core/site_scan.h"
#include "core/shell/workbench.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

const std::array<const char*, 6> kClassNames = {
    "monomorphic", "singleton", "parsimony informative", "three variants", "four variants",
    "gap or missing data"};

}  // namespace

void AddSiteViewOptions(CLI::App& app, SiteViewOptions& o) {
  app.add_option("--set", o.set, "Use the sequence set of this name (default: all included)");
  app.add_option("--from", o.from, "First site of the region (default 1)");
  app.add_option("--to", o.to, "Last site of the region (default the last site)");
}

bool RunSiteView(Workbench& wb, const SiteViewOptions& o) {
  ActiveData& d = wb.Data();
  int16_t set = 0;
  if (!o.set.empty()) {
    for (int32_t s = 1; s <= d.SetCount(); ++s)
      if (d.SequenceSets[static_cast<size_t>(s)].nombre() == o.set) set = static_cast<int16_t>(s);
    if (set == 0) {
      wb.Ui().MessageBox("No sequence set is named \"" + o.set + "\"", MsgIcon::kWarning);
      return false;
    }
  }
  const int32_t from = o.from == 0 ? 1 : o.from;
  const int32_t to = o.to == 0 ? d.NumSites : o.to;
  d.SelSites = d.NumSites;
  if (!RegionIsValid(from, to, d.SelSites)) {
    wb.Ui().MessageBox(kInvalidSelection, MsgIcon::kWarning);
    wb.Ui().ExplainRefusal(RegionFaultReason(from, to, d.SelSites));
    return false;
  }
  OutputChannel& channel = wb.Output();
  channel.ResetOutputs();
  d.Region.RegionFrom = from;
  d.Region.RegionTo = to;
  d.SelSet1 = set;
  SelectOneSet(d, set);
  if (d.SelCount1 < 1) {
    wb.Ui().MessageBox(TooFewSequencesMessage(1), MsgIcon::kWarning);
    wb.Ui().ExplainRefusal(SetTooSmallReason(d, set, d.SelCount1));
    return false;
  }

  const int32_t net = NetSites(d, from, to);
  const int32_t segregating = d.SegSites;
  const double diversity_sum = d.SumSiteDiversity;
  std::array<int32_t, 6> counts{};
  for (int32_t s = from; s <= to; ++s) ++counts[static_cast<size_t>(d.SelSiteClass1[static_cast<size_t>(s)])];

  std::string text = ReportHead(d, net);
  text += " Site classes in the region:\r\n";
  for (size_t c = 0; c < counts.size(); ++c)
    text += "    " + std::to_string(c) + " " + Format(kClassNames[c], "!@@@@@@@@@@@@@@@@@@@@@@") +
            Format(counts[c], "@@@@@@@@@") + "\r\n";
  text += " Segregating sites: " + StrNum(segregating) + "\r\n";
  text += " Extra mutations (three and four variants): " +
          StrNum(ExtraMutations(d, from, to)) + "\r\n";
  text += " Sum of per-site gene diversities: " + Format(diversity_sum, "0.00000") + "\r\n";
  text += " Nucleotide diversity per site: " + Format(DiversityPerSite(diversity_sum, net), "0.00000") +
          "\r\n";
  text += " Largest group of identical sequences: " + StrNum(BuscaLineasIdenticas(d, from, to)) +
          "\r\n";
  channel.AppendText(text);

  channel.Grid1.ColumnTitles = {"Site", "Class", "Diversity", "CodonPosition", "CodingFlag"};
  for (int32_t s = from; s <= to; ++s) {
    const auto i = static_cast<size_t>(s);
    channel.Grid1.Rows.push_back({std::to_string(s), std::to_string(d.SelSiteClass1[i]),
                                  Format(d.SelSiteDiversity1[i], "0.00000"),
                                  std::to_string(d.CodonPosition[i]), d.CodingFlag[i]});
  }
  channel.ResultTitle = "Site Classes";
  channel.ShowResult(kResultTextAndGrid);
  return true;
}

}  // namespace ovelt
