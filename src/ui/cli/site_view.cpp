#include "ui/cli/site_view.h"

#include <CLI/CLI.hpp>

#include <array>

#include "core/region_check.h"
#include "core/site_scan.h"
#include "output/format_mask.h"
#include "shell/workbench.h"

namespace ovelt {

namespace {

const std::array<const char*, 6> kClassNames = {"monomorphic",           "singleton",
                                                "parsimony informative", "three variants",
                                                "four variants",         "gap or missing data"};

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
  if (!RegionIsValid(from, to, d.NumSites)) {
    wb.Ui().MessageBox(kInvalidSelection, MsgIcon::kWarning);
    wb.Ui().ExplainRefusal(RegionFaultReason(from, to, d.NumSites));
    return false;
  }
  OutputChannel& channel = wb.Output();
  channel.ResetOutputs();
  d.Region = {from, to};
  const Selection sel = SelectOneSet(d, set, {from, to});
  if (sel.SelCount1 < 1) {
    wb.Ui().MessageBox(TooFewSequencesMessage(1), MsgIcon::kWarning);
    wb.Ui().ExplainRefusal(SetTooSmallReason(d, set, sel.SelCount1));
    return false;
  }

  const NetSiteCount count = CountNetSites(sel, from, to);
  const int32_t net = count.Net;
  const int32_t segregating = count.SegSites;
  const double diversity_sum = count.SumSiteDiversity;
  std::array<int32_t, 6> counts{};
  for (int32_t s = from; s <= to; ++s)
    ++counts[static_cast<size_t>(sel.SelSiteClass1[static_cast<size_t>(s)])];

  std::string text = ReportHead(sel, net);
  text += " Site classes in the region:\r\n";
  for (size_t c = 0; c < counts.size(); ++c)
    text += "    " + std::to_string(c) + " " + Format(kClassNames[c], "!@@@@@@@@@@@@@@@@@@@@@@") +
            Format(counts[c], "@@@@@@@@@") + "\r\n";
  text += " Segregating sites: " + StrNum(segregating) + "\r\n";
  text += " Extra mutations (three and four variants): " + StrNum(ExtraMutations(sel, from, to)) +
          "\r\n";
  text += " Sum of per-site gene diversities: " + Format(diversity_sum, "0.00000") + "\r\n";
  text +=
      " Nucleotide diversity per site: " + Format(DiversityPerSite(diversity_sum, net), "0.00000") +
      "\r\n";
  text += " Largest group of identical sequences: " + StrNum(BuscaLineasIdenticas(sel, from, to)) +
          "\r\n";
  channel.AppendText(text);

  channel.Grid1.ColumnTitles = {"Site", "Class", "Diversity", "CodonPosition", "CodingFlag"};
  channel.Grid1.Data.Keys = {"site", "site_class", "diversity", "codon_position", "coding_flag"};
  for (int32_t s = from; s <= to; ++s) {
    const auto i = static_cast<size_t>(s);
    const int16_t site_class = sel.SelSiteClass1[i];
    channel.Grid1.Rows.push_back({std::to_string(s), std::to_string(site_class),
                                  Format(sel.SelSiteDiversity1[i], "0.00000"),
                                  std::to_string(d.CodonPosition[i]), d.CodingFlag[i]});
    channel.Grid1.Data.Rows.push_back({int64_t{s}, std::string(kClassNames[static_cast<size_t>(site_class)]),
                                       sel.SelSiteDiversity1[i], int64_t{d.CodonPosition[i]},
                                       d.CodingFlag[i]});
  }
  channel.Labels.Title = "Site Classes";
  channel.ShowResult(kResultTextAndGrid);
  return true;
}

}  // namespace ovelt
