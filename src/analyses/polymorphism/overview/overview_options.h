#pragma once
// Options of the two overview commands: "DNA Polymorphism Analysis" (one selection and region)
// and "Multiblock Analysis" (every domain and every sequence set). Domains may be given here as
// text, "NAME=1-300,450-600", several separated by ";"; left empty, the file's domains are used.

#include <cstdint>
#include <string>

#include "core/command_options.h"

namespace ovelt {

struct OverviewOptions {
  int32_t RegionFrom = 1, RegionTo = 0;
  int16_t SelSet1 = 0;
  bool UseMutations = false;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use (default: all)"});
    v.Flag(UseMutations, {"mutations", "Total number of mutations",
                          "Statistics from the total number of mutations, Eta, instead of S"});
  }
};

struct MultiDomainOptions {
  int32_t RegionFrom = 1, RegionTo = 0;
  bool UseMutations = false;
  int32_t NumberOfDomains = 0;  // 0: all
  bool IncludeGapSites = true;
  std::string Domains;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.Flag(UseMutations, {"mutations", "Total number of mutations",
                          "Statistics from the total number of mutations, Eta, instead of S"});
    v.Integer(NumberOfDomains,
              {"domains", "Number of Domains", "Analyze the first this many domains (0: all)"}, 0,
              32767);
    v.Flag(IncludeGapSites,
           {"with-gaps", "Including sites with gaps", "Keep the sites with gaps in the domains"});
    v.Text(Domains, {"domain", "Domains",
                     "Domains as NAME=1-300,450-600, several separated by ';' (default: the "
                     "file's domains)"});
  }
};

}  // namespace ovelt
