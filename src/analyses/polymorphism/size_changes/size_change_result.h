#pragma once
// What "Population Size Changes" computes: the observed mismatch distribution and its
// statistics, the expected variances of k, the moment estimates, the parameters in use and the
// table of observed and expected values (or of Sn(t)) that the grid and the graph show.
// Plain numbers only; the report turns them into text.

#include <cstdint>
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

struct SizeChangeResult {
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
  double Time = 0.0;  // tau / theta final, in N generations (growth-decline)
  double SegregatingN = 0.0;      // Sn(t)
  double SegregatingNPerA1 = 0.0;
  double Segregating2 = 0.0;      // S2(t)
  double Segregating2PerA1 = 0.0;

  SizeChangeTable Table;
};

}  // namespace ovelt
