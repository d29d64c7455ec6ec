#include "analyses/polymorphism/size_changes/size_change_json.h"

namespace ovelt {

namespace {

void WriteVariance(JsonText& json, const char* key, const KVariance& v) {
  json.BeginObject(key)
      .Number("Total", v.Total)
      .Number("TotalCV", v.TotalCV)
      .Number("Stochastic", v.Stochastic)
      .Number("StochasticCV", v.StochasticCV)
      .Number("Sampling", v.Sampling)
      .Number("SamplingCV", v.SamplingCV)
      .EndObject();
}

}  // namespace

void WriteJson(JsonText& json, const SizeChangeResult& r) {
  json.BeginObject()
      .Integer("AnalysisKind", r.AnalysisKind)
      .String("Model", r.Model == kGrowthDecline ? "Population Growth-Decline"
                                                 : "Constant Population Size")
      .Integer("SampleSize", r.SampleSize)
      .Integer("NetSites", r.NetSites)
      .Integer("SegSites", r.SegSites)
      .Number("Pi", r.Pi)
      .Number("k", r.K)
      .Integer("Pairs", r.Mismatch.Pairs)
      .Integer("MaxDiff", r.Mismatch.MaxDiff);
  json.BeginArray("Mismatch");
  for (const int64_t pairs : r.Mismatch.Mismatch) json.Integer({}, pairs);
  json.EndArray();
  json.Number("VarK", r.VarK)
      .Number("ObservedCV", r.ObservedCV)
      .Number("Raggedness", r.Raggedness)
      .Number("MAE", r.MAE)
      .Number("R2", r.R2);
  json.Numbers("ObservedSpectrum",
               r.ObservedSpectrum.size() > 1
                   ? std::vector<double>(r.ObservedSpectrum.begin() + 1, r.ObservedSpectrum.end())
                   : std::vector<double>{});
  json.BeginObject("ExpectedVariances");
  WriteVariance(json, "NoRecombination", r.Expected.NoRecombination);
  WriteVariance(json, "FreeRecombination", r.Expected.FreeRecombination);
  json.EndObject();
  json.BeginObject("MomentEstimates")
      .Number("ThetaInitial", r.Moments.ThetaInitial)
      .Number("ThetaFinal", r.Moments.ThetaFinal)
      .Number("Tau", r.Moments.Tau)
      .EndObject();
  json.BeginObject("Parameters")
      .Number("ThetaInitial", r.Parameters.ThetaInitial)
      .Number("ThetaFinal", r.Parameters.ThetaFinal)
      .Number("Tau", r.Parameters.Tau)
      .Number("Time", r.Time)
      .EndObject();
  json.Number("Sn", r.SegregatingN)
      .Number("SnPerA1", r.SegregatingNPerA1)
      .Number("S2", r.Segregating2)
      .Number("S2PerA1", r.Segregating2PerA1);
  json.BeginObject("Table")
      .Integer("Rows", r.Table.Rows)
      .Numbers("X", r.Table.X)
      .Numbers("First", r.Table.First)
      .Numbers("Second", r.Table.Second)
      .EndObject();
  json.EndObject();
}

}  // namespace ovelt
