#pragma once
// Synonymous and nonsynonymous substitutions over one selection and region:
//  - synonymous sites of each sequence and the pairwise synonymous and nonsynonymous
//    differences (Nei and Gojobori 1986), whose means over the pairs are Pi(s) and Pi(a), with
//    their Jukes and Cantor values;
//  - the mutations of the classification of the codon columns (`SiteChangeCode`), which give
//    Theta(s) and Theta(a) when the region holds no mixed or complex code;
//  - with the silent option, the noncoding positions pooled with the synonymous sites.
// Without any coding site in the file only the silent part is computed.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "analyses/divergence/common/pair_table.h"
#include "analyses/divergence/common/tie_breaker.h"
#include "analyses/divergence/synonymous/synonymous_options.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

// A run of coding (or noncoding) sites of the region.
struct CodingRun {
  bool Coding = false;
  int32_t From = 0, To = 0;

  template <class V>
  void Visit(V& v) const {
    v.Bool("coding", Coding);
    v.Integer("from", From);
    v.Integer("to", To);
  }
};

struct SequenceSynonymousSites {
  std::string Name;  // the fixed field of 20 characters, as the report prints it
  float Synonymous = 0.0F;
  float Nonsynonymous = 0.0F;

  template <class V>
  void Visit(V& v) const {
    v.Text("name", Name.substr(0, Name.find_last_not_of(' ') + 1));
    v.Number("syn_sites", Synonymous);
    v.Number("nonsyn_sites", Nonsynonymous);
  }
};

// The per-pair numbers: differences and sites of each class for every pair i < j. With the
// silent option the synonymous ones are the silent ones (synonymous and noncoding).
struct SynonymousPairs {
  PairTable SynDif, NSynDif, SynPos, NSynPos;
};

// One row of the per-pair table, for the JSON.
struct SynonymousPairRow {
  int32_t Seq1 = 0, Seq2 = 0;
  bool Silent = false;
  float SynDif = 0.0F, SynPos = 0.0F, NSynDif = 0.0F, NSynPos = 0.0F;
  std::optional<double> Ks, Ka;

  template <class V>
  void Visit(V& v) const {
    v.Integer("seq1", Seq1);
    v.Integer("seq2", Seq2);
    v.Number(Silent ? "silent_dif" : "syn_dif", SynDif);
    v.Number(Silent ? "silent_pos" : "syn_pos", SynPos);
    v.Optional("ks", Ks);
    v.Number("nsyn_dif", NSynDif);
    v.Number("nsyn_pos", NSynPos);
    v.Optional("ka", Ka);
  }
};

// The silent sites: synonymous sites and noncoding positions together.
struct SilentSites {
  int32_t NoncodingPositions = 0;
  float Sites = 0.0F;  // mean synonymous sites plus the noncoding positions
  std::optional<float> Pi, PiJC;
  std::optional<double> Theta;  // none when the gate closes or there is no site
  int32_t Mutations = 0;        // synonymous mutations plus noncoding ones

  template <class V>
  void Visit(V& v) const {
    v.Integer("noncoding_positions", NoncodingPositions);
    v.Number("silent_sites", Sites);
    v.Optional("pi_silent", OptionalDouble(Pi));
    v.Optional("pi_silent_jc", OptionalDouble(PiJC));
    v.Optional("theta_silent", Theta);
    v.Integer("silent_mutations", Mutations);
  }
  static std::optional<double> OptionalDouble(const std::optional<float>& x) {
    return x ? std::optional<double>(*x) : std::nullopt;
  }
};

struct SynonymousResult {
  int32_t RegionFrom = 0, RegionTo = 0;
  int32_t Sequences = 0;
  int32_t NetSites = 0;        // L of the report head
  bool CodingRegions = false;  // the file has coding sites
  std::string GeneticCode;
  std::vector<CodingRun> Runs;
  int32_t Codons = 0;               // complete codons analyzed
  int32_t CodingSitesAnalyzed = 0;  // three per codon
  int32_t CodonsWithGaps = 0;
  float SynSites = 0.0F;     // mean of the sequences' synonymous sites
  float NonsynSites = 0.0F;  // coding sites analyzed minus that mean
  std::optional<float> PiS, PiSJC, PiA, PiAJC;
  int32_t SynMutations = 0, NonsynMutations = 0;  // Ms and Ma of the classification
  bool ThetaGate = false;                         // no mixed or complex code in the region
  bool ComplexCodons = false;                     // a complex code lies in the region
  std::optional<double> ThetaS, ThetaA;           // none when the gate closes or no site
  std::optional<SilentSites> Silent;
  bool StopFound = false;
  std::vector<SequenceSynonymousSites> PerSequence;
  // The per-pair table, when it is part of the result (asked for, or coding sites analyzed).
  std::shared_ptr<const SynonymousPairs> Pairs;
  std::vector<std::string> PairNames{""};  // the sequences' names, 1..n

  [[nodiscard]] std::vector<SynonymousPairRow> PairRows() const;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Integer("net_sites", NetSites);
    v.Text("genetic_code", GeneticCode);
    v.Array("coding_regions", Runs);
    v.Integer("codons", Codons);
    v.Integer("coding_sites", CodingSitesAnalyzed);
    v.Integer("codons_with_gaps", CodonsWithGaps);
    v.Bool("stop_codons", StopFound);
    if (CodingRegions) {
      v.Number("syn_sites", SynSites);
      v.Number("nonsyn_sites", NonsynSites);
      v.Optional("pi_s", SilentSites::OptionalDouble(PiS));
      v.Optional("pi_s_jc", SilentSites::OptionalDouble(PiSJC));
      v.Optional("pi_a", SilentSites::OptionalDouble(PiA));
      v.Optional("pi_a_jc", SilentSites::OptionalDouble(PiAJC));
      v.Integer("syn_mutations", SynMutations);
      v.Integer("nonsyn_mutations", NonsynMutations);
      v.Bool("complex_codons", ComplexCodons);
      v.Optional("theta_s", ThetaS);
      v.Optional("theta_a", ThetaA);
    }
    v.Object("silent", Silent);
    if (CodingRegions) v.Array("sequence_sites", PerSequence);
    if (Pairs) v.Array("pair_table", PairRows());
  }
};

// Over the region of `sel`; `ties` draws among tied pathways and networks.
[[nodiscard]] SynonymousResult ComputeSynonymous(const Selection& sel,
                                                 const SynonymousOptions& options,
                                                 TieBreaker& ties, const Progress& progress = {});

}  // namespace ovelt
