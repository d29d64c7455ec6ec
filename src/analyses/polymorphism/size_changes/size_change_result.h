#pragma once
// What "Population Size Changes" computes: the observed mismatch distribution and its
// statistics, the expected variances of k, the moment estimates, the parameters in use and the
// table of observed and expected values (or of Sn(t)) that the grid and the graph show.
// Plain numbers only; the report turns them into text.

#include <cstdint>
#include <optional>
#include <vector>

#include "analyses/polymorphism/size_changes/mismatch_distribution.h"
#include "analyses/polymorphism/size_changes/size_change_k_variance.h"
#include "analyses/polymorphism/size_changes/size_change_moments.h"
#include "analyses/polymorphism/size_changes/size_change_options.h"

namespace ovelt {

// Rows of the table: for the mismatch distribution the number of differences, the observed
// and the expected share of pairs; for the frequency spectrum the folded class i and the shares
// of mutations; for Sn(t) the time in N generations and S2(t) / a1(2), Sn(t) / a1(n).
struct SizeChangeTable {
  std::vector<double> X;
  std::vector<double> First;
  std::vector<double> Second;
  // Rows the table would have; above the grid's limit the columns stay empty.
  int64_t Rows = 0;
};

// One row of the table, under the keys of its kind.
struct SizeChangeRow {
  int32_t Kind = kMismatchKind;
  double X = 0.0;
  double First = 0.0;
  double Second = 0.0;

  template <class V>
  void Visit(V& v) const {
    if (Kind == kSegregatingKind) {
      v.Number("time", X);
      v.Number("expected_s2_per_a1", First);
      v.Number("expected_sn_per_a1", Second);
      return;
    }
    v.Integer(Kind == kSpectrumKind ? "frequency_class" : "differences",
              static_cast<int64_t>(X));
    v.Number("observed_frequency", First);
    v.Number("expected_frequency", Second);
  }
};

struct SizeChangeResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  int32_t AnalysisKind = kMismatchKind;
  int16_t Model = kConstantSize;

  // Observed.
  int32_t SampleSize = 0;  // n
  int32_t NetSites = 0;    // L
  int32_t SegSites = 0;    // S
  double Pi = 0.0;
  double K = 0.0;          // k, the sum of the per-site diversities
  MismatchDistribution Mismatch;
  double VarK = 0.0;
  double ObservedCV = 0.0;
  double Raggedness = 0.0;
  double MAE = 0.0;
  double R2 = 0.0;
  std::vector<double> ObservedSpectrum;  // folded counts, 1..n / 2

  // Expected under constant size, and the moment estimates of an expansion.
  ExpectedKVariances Expected;
  MomentEstimates Moments;

  // In use for the expected values.
  SizeChangeParameters Parameters;
  // tau / theta final, in N generations: growth-decline only (the constant size has no change;
  // its expected values take a time of 0).
  std::optional<double> Time;
  double SegregatingN = 0.0;      // Sn(t)
  double SegregatingNPerA1 = 0.0;
  double Segregating2 = 0.0;      // S2(t)
  double Segregating2PerA1 = 0.0;

  SizeChangeTable Table;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("kind", AnalysisKind);
    v.Text("model",
           Model == kGrowthDecline ? "Population Growth-Decline" : "Constant Population Size");
    v.Integer("sequences", SampleSize);
    v.Integer("net_sites", NetSites);
    v.Integer("segregating_sites", SegSites);
    v.Number("k", K);
    v.Number("pi", Pi);
    v.Integer("pairs", Mismatch.Pairs);
    v.Integers("mismatch_distribution", Mismatch.Mismatch);
    v.Number("var_k", VarK);
    v.Number("cv_k", ObservedCV);
    v.Number("raggedness", Raggedness);
    v.Number("mae", MAE);
    v.Number("r2", R2);
    std::vector<int64_t> spectrum;
    for (size_t i = 1; i < ObservedSpectrum.size(); ++i)
      spectrum.push_back(static_cast<int64_t>(ObservedSpectrum[i]));
    v.Integers("folded_spectrum", spectrum);
    Expected.Visit(v);
    Moments.Visit(v);
    v.Number("theta_initial", Parameters.ThetaInitial);
    v.Number("theta_final", Parameters.ThetaFinal);
    v.Number("tau", Parameters.Tau);
    v.Optional("time_since_change", Time);
    v.Number("expected_sn", SegregatingN);
    v.Number("expected_sn_per_a1", SegregatingNPerA1);
    v.Number("expected_s2", Segregating2);
    v.Number("expected_s2_per_a1", Segregating2PerA1);
    v.Integer("table_rows", Table.Rows);
    std::vector<SizeChangeRow> rows;
    for (size_t i = 0; i < Table.X.size(); ++i)
      rows.push_back({AnalysisKind, Table.X[i], Table.First[i], Table.Second[i]});
    v.Array("table", rows);
  }
};

}  // namespace ovelt
