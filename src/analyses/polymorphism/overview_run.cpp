#include "analyses/polymorphism/overview_run.h"

#include <exception>

#include "analyses/polymorphism/domain_definition.h"
#include "analyses/polymorphism/overview_report.h"
#include "core/site_scan.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

bool CheckRegion(ActiveData& ad, OutputChannel& out, Platform& ui, int32_t from, int32_t to) {
  if (RegionIsValid(from, to, ad.NumSites)) return true;
  ui.MessageBox(kInvalidSelection, MsgIcon::kWarning);
  ui.ExplainRefusal(RegionFaultReason(from, to, ad.NumSites));
  out.ReopenDialog = 1;
  return false;
}

void Fail(OutputChannel& out, Platform& ui, const std::string& words) {
  ui.MessageBox(words, MsgIcon::kWarning);
  out.RunFailed = 1;
  out.EndFailedRun();
  out.SetBusy(false);
}

std::string JoinCells(const std::vector<std::string>& cells) {
  std::string line;
  for (size_t i = 0; i < cells.size(); ++i) line += (i ? "  " : "") + cells[i];
  return line;
}

// The domain's sites, without those where an included sequence has a gap or missing data when
// such sites are not to be kept.
std::vector<int32_t> DomainSites(const ActiveData& ad, const DomainSet& domain, bool with_gaps) {
  std::vector<int32_t> sites;
  for (const int32_t site : domain.Sites) {
    if (site < 1 || site > ad.NumSites) continue;
    if (!with_gaps && ad.SiteClass[static_cast<size_t>(site)] == kGapOrMissing) continue;
    sites.push_back(site);
  }
  return sites;
}

}  // namespace

bool RunOverview(ActiveData& ad, OutputChannel& out, Platform& ui, const OverviewOptions& given,
                 OverviewStats* stats) {
  OverviewOptions options = given;
  if (options.RegionTo == 0) options.RegionTo = ad.NumSites;
  const int32_t from = options.RegionFrom, to = options.RegionTo;
  if (!CheckRegion(ad, out, ui, from, to)) return false;

  out.ResetOutputs();
  out.SetBusy(true, "Computing Haplotype Diversity...");
  SelectOneSet(ad, options.SelSet1);
  ad.Region = {from, to};
  if (const int32_t minimum = MinimumSequences(kOverviewCode, ad.SelOutCount)) {
    ui.MessageBox(TooFewSequencesMessage(minimum), MsgIcon::kWarning);
    ui.ExplainRefusal(SetTooSmallReason(ad, options.SelSet1, ad.SelOutCount));
    out.ReopenDialog = 1;
    out.SetBusy(false);
    return false;
  }
  try {
    const bool use_mutations = options.UseMutations || ad.UseMutations;
    const OverviewStats o = ComputeOverview(ad, from, to, use_mutations, [&out](int percent) {
      if (percent >= 25) out.SetStatus("Computing sampling Variance of Pi...");
      out.RaiseGauge(percent);
    });
    const std::string head = ReportHead(ad, o.NetSites);
    out.HeaderBlock = head;
    out.AppendText(head + OverviewReportText(o));
    out.ResultCode = kOverviewCode;
    out.ShowResult(kResultTextOnly);
    out.SetBusy(false);
    if (stats != nullptr) *stats = o;
    return true;
  } catch (const std::exception&) {
    Fail(out, ui, kOverviewFailure);
  }
  return false;
}

bool RunMultiDomain(ActiveData& ad, OutputChannel& out, Platform& ui,
                    const MultiDomainOptions& given, std::vector<MultiDomainRow>* rows_out) {
  MultiDomainOptions options = given;
  if (options.RegionTo == 0) options.RegionTo = ad.NumSites;
  if (const auto failure = OptionRangeRefusal(options)) {
    ui.MessageBox(failure->Text, MsgIcon::kWarning);
    ui.ExplainRefusal(failure->Reason);
    out.ReopenDialog = 1;
    return false;
  }
  if (!CheckRegion(ad, out, ui, options.RegionFrom, options.RegionTo)) return false;
  if (!options.Domains.empty()) {
    const auto parsed = ParseDomains(options.Domains, ad.NumSites);
    if (!parsed) {
      ui.MessageBox(kInvalidSelection, MsgIcon::kWarning);
      ui.ExplainRefusal("Domains are NAME=FROM-TO (several joined by \";\"), with named domains "
                        "and sites from 1 to " + std::to_string(ad.NumSites) + ".");
      out.ReopenDialog = 1;
      return false;
    }
    ad.Domains = *parsed;
  }
  std::vector<DomainSet> domains = ad.Domains;
  if (domains.empty()) {
    DomainSet region{StrNum(options.RegionFrom) + "-" + StrNum(options.RegionTo), {}};
    for (int32_t site = options.RegionFrom; site <= options.RegionTo; ++site)
      region.Sites.push_back(site);
    domains.push_back(std::move(region));
  }
  if (options.NumberOfDomains > 0 && static_cast<size_t>(options.NumberOfDomains) < domains.size())
    domains.resize(static_cast<size_t>(options.NumberOfDomains));

  out.ResetOutputs();
  out.SetBusy(true, "Computing and displaying output...");
  std::vector<MultiDomainRow> rows;
  const bool use_mutations = options.UseMutations || ad.UseMutations;
  try {
    for (size_t d = 0; d < domains.size(); ++d) {
      const std::vector<int32_t> sites = DomainSites(ad, domains[d], options.IncludeGapSites);
      ActiveData domain = DomainData(ad, sites);
      for (int16_t set = 0; set <= ad.SetCount(); ++set) {
        SelectOneSet(domain, set);
        if (domain.SelOutCount < 1) continue;
        MultiDomainRow row;
        row.DataFile = ad.FileName;
        row.Population = set == 0 ? kAllSequencesSet
                                  : ad.SequenceSets[static_cast<size_t>(set)].nombre();
        row.Region = domains[d].Name;
        row.SitesRegion = static_cast<int32_t>(domains[d].Sites.size());
        row.Stats = ComputeOverview(domain, 1, domain.NumSites, use_mutations);
        rows.push_back(std::move(row));
      }
      out.RaiseGauge(static_cast<int>((d + 1) * 100 / domains.size()));
    }
  } catch (const std::exception&) {
    Fail(out, ui, kMultiDomainFailure);
    return false;
  }

  std::string table = JoinCells(MultiDomainLongHeads()) + "\r\n";
  out.Grid1.ColumnTitles = MultiDomainShortHeads();
  for (const MultiDomainRow& row : rows) {
    std::vector<std::string> cells = MultiDomainCells(row);
    table += JoinCells(cells) + "\r\n";
    out.Grid1.Rows.push_back(std::move(cells));
  }
  out.SetGridTextHead(JoinCells(MultiDomainLongHeads()));
  out.AppendText(table);
  out.ResultCode = kMultiDomainCode;
  out.ShowResult(kResultTextAndGrid);
  out.SetBusy(false);
  if (rows_out != nullptr) *rows_out = std::move(rows);
  return true;
}

}  // namespace ovelt
