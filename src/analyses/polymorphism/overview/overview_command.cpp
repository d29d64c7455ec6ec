#include "analyses/polymorphism/overview/overview_command.h"

#include <exception>

#include "analyses/polymorphism/overview/domain_definition.h"
#include "analyses/polymorphism/overview/multidomain_table.h"
#include "analyses/polymorphism/overview/overview_options.h"
#include "analyses/polymorphism/overview/overview_report.h"
#include "analyses/polymorphism/overview/overview_stats.h"
#include "command/analysis_binding.h"
#include "core/site_scan.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

int32_t RegionEnd(int32_t to, const ActiveData& data) {
  return to == 0 ? data.NumSites : to;
}

std::optional<SelectionRefusal> RegionRefusal(int32_t from, int32_t to, const ActiveData& data) {
  const int32_t end = RegionEnd(to, data);
  if (RegionIsValid(from, end, data.NumSites)) return std::nullopt;
  return SelectionRefusal{kInvalidSelection, RegionFaultReason(from, end, data.NumSites)};
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

// The intraspecific overview.

OverviewResult ComputeIntraspecific(const Selection& sel, const OverviewOptions& options,
                                    const Progress& progress) {
  try {
    const bool use_mutations = options.UseMutations || sel.data().UseMutations;
    OverviewResult result;
    result.RegionFrom = sel.Region.RegionFrom;
    result.RegionTo = sel.Region.RegionTo;
    result.Stats = ComputeOverview(sel, result.RegionFrom, result.RegionTo, use_mutations,
                                   [&progress](int percent) {
                                     if (percent >= 25)
                                       progress.Say("Computing sampling Variance of Pi...");
                                     progress.Raise(percent);
                                   });
    return result;
  } catch (const CommandFailure&) {
    throw;
  } catch (const std::exception&) {
    Fail(kOverviewFailure);
  }
}

CommandReport ReportIntraspecific(const OverviewResult& result, const Selection& sel,
                                  const OverviewOptions&) {
  CommandReport report;
  report.Head = ReportHead(sel, result.Stats.NetSites);
  report.Body = OverviewReportText(result.Stats);
  return report;
}

// The overview of every domain and set.

// The domains of a run: those typed in the dialog, else the file's, else the region as one.
std::vector<DomainSet> RunDomains(const ActiveData& data, const MultiDomainOptions& options) {
  std::vector<DomainSet> domains = data.Domains;
  if (!options.Domains.empty()) domains = *ParseDomains(options.Domains, data.NumSites);
  const int32_t to = RegionEnd(options.RegionTo, data);
  if (domains.empty()) {
    DomainSet region{StrNum(options.RegionFrom) + "-" + StrNum(to), {}};
    for (int32_t site = options.RegionFrom; site <= to; ++site) region.Sites.push_back(site);
    domains.push_back(std::move(region));
  }
  if (options.NumberOfDomains > 0 && static_cast<size_t>(options.NumberOfDomains) < domains.size())
    domains.resize(static_cast<size_t>(options.NumberOfDomains));
  return domains;
}

MultiDomainResult ComputeDomains(const Selection& sel, const MultiDomainOptions& options,
                                 const Progress& progress) {
  const ActiveData& ad = sel.data();
  const std::vector<DomainSet> domains = RunDomains(ad, options);
  const bool use_mutations = options.UseMutations || ad.UseMutations;
  MultiDomainResult result;
  result.DataFile = ad.FileName;
  std::vector<MultiDomainRow>& rows = result.Rows;
  try {
    for (size_t d = 0; d < domains.size(); ++d) {
      const std::vector<int32_t> sites = DomainSites(ad, domains[d], options.IncludeGapSites);
      const ActiveData domain = DomainData(ad, sites);
      for (int16_t set = 0; set <= ad.SetCount(); ++set) {
        const Selection part = SelectOneSet(domain, set, {1, domain.NumSites});
        if (part.SelOutCount < 1) continue;
        MultiDomainRow row;
        row.DataFile = ad.FileName;
        row.Population =
            set == 0 ? kAllSequencesSet : ad.SequenceSets[static_cast<size_t>(set)].nombre();
        row.Region = domains[d].Name;
        row.SitesRegion = static_cast<int32_t>(domains[d].Sites.size());
        row.Stats = ComputeOverview(part, 1, domain.NumSites, use_mutations);
        rows.push_back(std::move(row));
      }
      progress.Raise(static_cast<int>((d + 1) * 100 / domains.size()));
    }
  } catch (const CommandFailure&) {
    throw;
  } catch (const std::exception&) {
    Fail(kMultiDomainFailure);
  }
  return result;
}

CommandReport ReportDomains(const MultiDomainResult& result, const Selection&,
                            const MultiDomainOptions&) {
  const std::vector<MultiDomainRow>& rows = result.Rows;
  CommandReport report;
  report.Body = JoinCells(MultiDomainLongHeads()) + "\r\n";
  report.Grid1.ColumnTitles = MultiDomainShortHeads();
  report.GridArray = "domains";
  for (const MultiDomainRow& row : rows) {
    std::vector<std::string> cells = MultiDomainCells(row);
    report.Body += JoinCells(cells) + "\r\n";
    report.Grid1.Rows.push_back(std::move(cells));
  }
  report.GridTextHead = JoinCells(MultiDomainLongHeads());
  report.ShowKinds = {kResultTextAndGrid};
  return report;
}

}  // namespace

std::shared_ptr<const CommandBinding> IntraspecificBinding() {
  AnalysisParts<OverviewOptions, OverviewResult> parts;
  parts.Validate = [](const OverviewOptions& options, const ActiveData& data) {
    return RegionRefusal(options.RegionFrom, options.RegionTo, data);
  };
  parts.BusyWords = [](const OverviewOptions&) { return "Computing Haplotype Diversity..."; };
  parts.Select = [](const ActiveData& data, const OverviewOptions& options) {
    return SelectOneSet(data, options.SelSet1,
                        {options.RegionFrom, RegionEnd(options.RegionTo, data)});
  };
  parts.Compute = ComputeIntraspecific;
  parts.Report = ReportIntraspecific;
  parts.JsonName = "DNA Polymorphism Analysis";
  return MakeAnalysis(std::move(parts));
}

std::shared_ptr<const CommandBinding> MultiDomainBinding() {
  AnalysisParts<MultiDomainOptions, MultiDomainResult> parts;
  parts.Validate = [](const MultiDomainOptions& options,
                      const ActiveData& data) -> std::optional<SelectionRefusal> {
    if (auto refusal = RegionRefusal(options.RegionFrom, options.RegionTo, data)) return refusal;
    if (!options.Domains.empty() && !ParseDomains(options.Domains, data.NumSites))
      return SelectionRefusal{kInvalidSelection,
                              "Domains are NAME=FROM-TO (several joined by \";\"), with named "
                              "domains and sites from 1 to " +
                                  std::to_string(data.NumSites) + "."};
    return std::nullopt;
  };
  parts.BusyWords = [](const MultiDomainOptions&) { return "Computing and displaying output..."; };
  // Each domain and set makes its own selection; this one only carries the region.
  parts.Select = [](const ActiveData& data, const MultiDomainOptions& options) {
    return SelectFirstSetOnly(data, 0, {options.RegionFrom, RegionEnd(options.RegionTo, data)});
  };
  parts.Compute = ComputeDomains;
  parts.Report = ReportDomains;
  parts.JsonName = "Multiblock Analysis. Provisional";
  return MakeAnalysis(std::move(parts));
}

}  // namespace ovelt
