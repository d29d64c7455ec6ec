#include "analyses/polymorphism/size_changes/size_change_report.h"

#include "core/line_end.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

bool IsMismatch(int32_t kind) {
  return kind == kMismatchKind || kind == kMismatchKindToo;
}

std::string Line(const std::string& text) {
  return text + kCrLf;
}

std::string VarianceLines(const KVariance& v, const std::string& model) {
  return Line("    Expected Total variance of k (" + model +
              "), V(k): " + Format(v.Total, "0.0000")) +
         Line("       Expected C.V. of k (" + model + "): " + Format(v.TotalCV, "0.0000")) +
         Line("    Expected Stochastic variance of k (" + model +
              "), Vst(k): " + Format(v.Stochastic, "0.0000")) +
         Line("    Expected Sampling variance of k (" + model +
              "), Vs(k): " + Format(v.Sampling, "0.0000"));
}

std::string MismatchText(const SizeChangeResult& r) {
  std::string text;
  text += Line("");
  text += Line(" Observed values:");
  text += Line("    Nucleotide diversity, Pi: " + Format(r.Pi, "0.00000"));
  text += Line("    Average Number of Pairwise Differences, k: " + Format(r.K, "0.000"));
  text += Line("    Observed variance of k: " + Format(r.VarK, "0.0000"));
  text += Line("    Observed C.V. of k: " + Format(r.ObservedCV, "0.0000"));
  text += Line("    Raggedness statistic r: " + Format(r.Raggedness, "0.0000"));
  text += Line("    Mean Absolute Error, MAE: " + Format(r.MAE, "0.0000"));
  text += Line("    Corvel and Valdor, R2 statistic: " + Format(r.R2, "0.0000"));
  text += Line("");
  text += Line(" Expected values:");
  text += VarianceLines(r.Expected.NoRecombination, "no recombination");
  text += VarianceLines(r.Expected.FreeRecombination, "free recombination");
  text += Line(" Parameters Estimation by letting Theta Final as infinite ");
  text += Line("    Estimate of Theta Initial: " + Format(r.Moments.ThetaInitial, "0.000"));
  text += Line("    Estimate of Tau: " + Format(r.Moments.Tau, "0.000"));
  if (r.Model == kGrowthDecline) {
    text += Line(" ====  Expected Values for Population Size Changes  =====");
    text += Line("    Theta Initial: " + Format(r.Parameters.ThetaInitial, "0.000"));
    text += Line("    Theta Final: " + Format(r.Parameters.ThetaFinal, "0.000"));
    text += Line("    Tau = 2ut: " + Format(r.Parameters.Tau, "0.000"));
  } else {
    text += Line(" ====  Expected Values for Constant Population Size  =====");
  }
  return text;
}

std::string SegregatingLines(int32_t n, const std::string& name, double value, double per_a1) {
  return Line(" Expected Number of Segregating sites among " + StrNum(n) + " sequences, " + name +
              ": " + Format(value, "0.000")) +
         Line("      Value of " + name + "/a1 : " + Format(per_a1, "0.000"));
}

std::string SpectrumText(const SizeChangeResult& r) {
  std::string text = Line("");
  if (r.Model == kGrowthDecline) {
    text += Line("=================== Population Size Change ===================");
    text += Line(" Theta Initial: " + Format(r.Parameters.ThetaInitial, "0.000"));
    text += Line(" Theta Final: " + Format(r.Parameters.ThetaFinal, "0.000"));
    text += Line(" Time: " + Format(r.Time.value_or(0.0), "0.000") + "N generations");
  } else {
    text += Line(" ====  Expected Values for Constant Population Size  =====");
  }
  text += SegregatingLines(r.SampleSize, "Sn(t)", r.SegregatingN, r.SegregatingNPerA1);
  text += SegregatingLines(2, "S2(t)", r.Segregating2, r.Segregating2PerA1);
  return text;
}

}  // namespace

std::string SizeChangeReportText(const SizeChangeResult& r) {
  std::string text = Line(" Number of polymorphic (segregating) sites, S: " + StrNum(r.SegSites));
  return text + (IsMismatch(r.AnalysisKind) ? MismatchText(r) : SpectrumText(r));
}

std::vector<std::string> SizeChangeColumnTitles(const SizeChangeResult& r) {
  if (IsMismatch(r.AnalysisKind)) return {"Differences", "Freq. Obs.", "Freq. Exp."};
  if (r.AnalysisKind == kSpectrumKind) return {"Segreg. i", "Freq. Obs.", "Freq. Exp."};
  return {"Time (N gen)", "n = 2", "n = " + StrNum(r.SampleSize)};
}

std::string SizeChangeGridTextHead(const SizeChangeResult& r) {
  if (IsMismatch(r.AnalysisKind)) return "Differences  Freq. Obs.  Freq. Exp.";
  if (r.AnalysisKind == kSpectrumKind) return "Segreg. i    Freq. Obs.  Freq. Exp.";
  return "Time (N gen)   n = 2      n = " + StrNum(r.SampleSize);
}

std::vector<std::vector<std::string>> SizeChangeGridRows(const SizeChangeResult& r) {
  std::vector<std::vector<std::string>> rows;
  const bool timed = r.AnalysisKind == kSegregatingKind;
  for (size_t i = 0; i < r.Table.X.size(); ++i) {
    rows.push_back(
        {timed ? Format(r.Table.X[i], "0.0") : Format(static_cast<int64_t>(r.Table.X[i]), "@@@@@"),
         Format(r.Table.First[i], "0.00000"), Format(r.Table.Second[i], "0.00000")});
  }
  return rows;
}

SizeChangeGraph SizeChangeGraphData(const SizeChangeResult& r) {
  SizeChangeGraph g;
  g.GraphSubKind = static_cast<int16_t>(r.AnalysisKind);
  if (IsMismatch(r.AnalysisKind)) {
    g.XTitle = "Pairwise Differences";
  } else if (r.AnalysisKind == kSpectrumKind) {
    g.XTitle = "Allelic Frequency";
  } else {
    g.XTitle = "Time in generations";
  }
  const std::vector<std::string> titles = SizeChangeColumnTitles(r);
  g.SeriesNames = r.AnalysisKind == kSegregatingKind
                      ? std::vector<std::string>{titles[1], titles[2]}
                      : std::vector<std::string>{"Obs", "Exp"};
  g.Series.resize(2);
  for (size_t i = 0; i < r.Table.X.size(); ++i) {
    g.X.push_back(static_cast<float>(r.Table.X[i]));
    g.Series[0].push_back(static_cast<float>(r.Table.First[i]));
    g.Series[1].push_back(static_cast<float>(r.Table.Second[i]));
  }
  g.GraphRows = static_cast<int32_t>(g.X.size());
  return g;
}

GraphData SizeChangeChart(const SizeChangeGraph& g) {
  GraphData chart;
  chart.GraphKind = g.GraphKind;
  chart.GraphSubKind = g.GraphSubKind;
  const auto rows = static_cast<int32_t>(g.X.size());
  chart.Table = WindowTable(rows, 4);
  for (int32_t row = 1; row <= rows; ++row) {
    const auto i = static_cast<size_t>(row - 1);
    chart.Table.at(row, 1) = g.X[i];
    for (size_t s = 0; s < g.Series.size() && s < 2; ++s)
      chart.Table.at(row, static_cast<int32_t>(s) + 2) = g.Series[s][i];
  }
  chart.Table.RowsUsed = rows;
  chart.GraphRows = rows;
  chart.SeriesNames = g.SeriesNames;
  return chart;
}

std::string SizeChangeTooBigMessage(int64_t rows) {
  return "Output too big to be displayed on the screen !\nThere are " + StrNum(rows) + "rows !";
}

}  // namespace ovelt
