#pragma once
// The table of "Multiblock Analysis": one row per domain and sequence set, with the overview's
// statistics. The grid shows short heads, the exported table long ones; cells that do not apply
// print "n.a.", statistics that cannot be computed "n.d.".

#include <cstdint>
#include <string>
#include <vector>

#include "analyses/polymorphism/overview/overview_stats.h"

namespace ovelt {

inline const char* const kAllSequencesSet = "All_Seqs";

struct MultiDomainRow {
  std::string DataFile;
  std::string Population;  // the set's name, "All_Seqs" for all included sequences
  std::string Region;      // the domain's name
  int32_t SitesRegion = 0;  // sites of the domain
  OverviewStats Stats;

  template <class V>
  void Visit(V& v) const {
    v.Text("domain", Region);
    v.Text("sequence_set", Population);
    v.Integer("domain_sites", SitesRegion);
    Stats.Visit(v);
  }
};

// The result of "Multiblock Analysis": one row per domain and set, in the table's order.
struct MultiDomainResult {
  std::string DataFile;
  std::vector<MultiDomainRow> Rows;

  template <class V>
  void Visit(V& v) const {
    v.Text("data_file", DataFile);
    v.Array("domains", Rows);
  }
};

[[nodiscard]] const std::vector<std::string>& MultiDomainLongHeads();
[[nodiscard]] const std::vector<std::string>& MultiDomainShortHeads();

// The cells of a row, formatted, in the order of the heads.
[[nodiscard]] std::vector<std::string> MultiDomainCells(const MultiDomainRow& row);

// A test statistic: "0.0000" with a leading blank for values that are not negative, so that the
// signs line up; "   n.d." when it cannot be computed.
[[nodiscard]] std::string TestCell(const NeutralityValue& v);

}  // namespace ovelt
