#pragma once
// The state of the one open data file: what the file held (file layer), the sequences the user
// left included (included layer), and the settings. The fourth layer, the sequences of the
// running command, is a value of its own (core/selection.h) that each run makes from these.
// Per-site and per-sequence arrays count from 1 and keep an unused index 0, so that their indices
// read like the site and sequence numbers of reports.

#include <cstdint>
#include <string>
#include <vector>

#include "core/genetic_code.h"
#include "core/pref_tables.h"
#include "core/seq_matrix.h"
#include "core/sequence_set.h"

namespace ovelt {

inline constexpr int kNameWidth = 20;

// Site classes (SiteInfo).
enum SiteInfo : int16_t {
  kMonomorphic = 0,
  kSingletonSite = 1,
  kInformativeSite = 2,
  kThreeVariants = 3,
  kFourVariants = 4,
  kGapOrMissing = 5,
};

enum FileKindCode : int16_t {
  kMega = 0,
  kNbrf = 1,
  kNexus = 2,
  kPhylip = 3,
  kFasta = 4,
};

// Pads or cuts a sequence name to the fixed field of 20 characters (a UTF-8 letter is one
// character and is never split), with control characters shown as "?".
[[nodiscard]] std::string FixedName(const std::string& name);

// One domain: a named list of site numbers, ascending, each once.
struct DomainSet {
  std::string Name;
  std::vector<int32_t> Sites;
};

struct RegionSelection {
  int32_t RegionFrom = 1;
  int32_t RegionTo = 0;  // 0: no file open, nothing selected
};

struct FormatAttributes {
  int16_t Interleaved = 1;
  int32_t BlockLength = 60;
  char GapSymbol = '-';
  int16_t MatchSymbolOn = 1;
  char MatchSymbol = '.';
  char MissingSymbol = '?';
  int16_t NexusVersion = 0;
  int16_t LineDelimiter = 1;
  int16_t NucleotideType = 0;
  int16_t GenomeState = 0;
  int16_t ChromosomalLocation = 0;
  int16_t GeneticCodeIndex = 1;
  int16_t CodingAssigned = -1;
};

struct ActiveData {
  // File layer.
  std::string FilePath;
  std::string FileName;
  int16_t FileKind = kFasta;
  int16_t TotalSeqs = 0;
  int32_t NumSites = 0;
  SeqMatrix RawMatrix;
  std::vector<std::string> RawNames{""};  // 1..TotalSeqs, 20-character fields
  std::vector<bool> SeqIncluded{false};   // 1..TotalSeqs
  std::vector<int16_t> RawSiteClass{0};   // 1..NumSites

  // Included layer.
  int32_t NumSeqs = 0;
  SeqMatrix IncMatrix;
  std::vector<std::string> IncNames{""};
  std::vector<int16_t> SiteClass{0};
  std::vector<double> SiteDiversity{0.0};

  // The region of the last confirmed dialog.
  RegionSelection Region;
  FormatAttributes Format;

  // Sequence sets, 1..count (index 0 unused).
  std::vector<PoblacionSecuencias> SequenceSets{PoblacionSecuencias{}};
  [[nodiscard]] int32_t SetCount() const { return static_cast<int32_t>(SequenceSets.size()) - 1; }

  // Coding map (per site, 1..NumSites).
  std::vector<int16_t> CodonPosition{0};
  std::vector<std::string> CodingFlag{""};
  int32_t LastCodingSite = 0;
  // Translation table of `Format.GeneticCodeIndex`, rebuilt with the coding tables.
  GeneticCodeTable GeneticCode = BuildGeneticCode(1);
  // The preferred/unpreferred codon tables (built-in ones and those of the file), and the name
  // of the table assigned to the data ("None" when none is).
  GCPrefUnPref PrefTables;
  std::string PrefTableName = kNoPrefTable;

  // Settings kept across files.
  int16_t GapsInSets = 1;
  bool GapsInWindow = false;
  bool UseMutations = false;

  // Command state.
  int16_t Analysis = 0;
  int16_t OpenFiles = 0;
  int16_t ResultCode = 0;
  // Domains (NEXUS CHARSETs): named lists of sites, for the multi-domain overview.
  std::vector<DomainSet> Domains;
  [[nodiscard]] int32_t DomainCount() const { return static_cast<int32_t>(Domains.size()); }
};

}  // namespace ovelt
