#include "analyses/polymorphism/neutrality/fu_li_outgroup_json.h"

#include <cmath>

#include "analyses/polymorphism/neutrality/neutrality_significance.h"

namespace ovelt {

namespace {

void WriteSignificance(JsonText& json, const char* key, double value, FuLiTable table, int32_t n) {
  json.String(key, MarkText(SignificanceFuLi(value, table, n)));
}

}  // namespace

void WriteJson(JsonText& json, const FuLiOutgroupResult& r) {
  const NeutralityTotals& t = r.Totals;
  json.BeginObject();
  json.String("analysis", "Fu and Li's Tests with an Outgroup");
  json.Integer("region_from", r.RegionFrom).Integer("region_to", r.RegionTo);
  json.Integer("sequences", r.Sequences).Integer("outgroup_sequences", r.OutgroupSequences);
  json.Bool("use_mutations", r.UseMutations);
  json.Integer("net_sites", t.NetSites).Integer("segregating_sites", t.SegSites);
  json.BeginArray("ambiguous_sites");
  for (const int32_t site : r.AmbiguousSites) json.Integer({}, site);
  json.EndArray();
  json.Integer("mutations", t.TotalMutations).Integer("eta", t.Eta);
  json.Integer("eta_e", t.EtaE).Integer("eta_s", t.EtaS);
  json.Number("k", t.K).Number("pi", r.Pi);
  json.Number("theta_k", r.ThetaK).Number("theta_eta_e", r.ThetaEtaE);
  json.Number("theta_eta", r.ThetaEta);
  json.Number("fu_li_d", r.D);
  WriteSignificance(json, "fu_li_d_significance", r.D, FuLiTable::kD, r.Sequences);
  json.Number("fu_li_f", r.F);
  WriteSignificance(json, "fu_li_f_significance", r.F, FuLiTable::kF, r.Sequences);
  json.Number("theta_h", r.FayWu.ThetaH).Number("theta_pi", r.FayWu.ThetaPi);
  json.Number("fay_wu_h", r.FayWu.H);
  if (r.Windows) {
    const FuLiOutgroupWindows& w = *r.Windows;
    json.BeginObject("sliding_window");
    json.Integer("window_length", w.Geometry.WindowLength)
        .Integer("step_size", w.Geometry.StepSize);
    json.Bool("gaps_in_window", w.Geometry.GapsInWindow);
    json.BeginArray("windows");
    for (const FuLiOutgroupWindow& row : w.Rows) {
      json.BeginObject();
      json.Integer("start", row.Window.Start).Integer("end", row.Window.End);
      json.Integer("net_sites", row.Window.NetSites).Integer("midpoint", row.Window.Midpoint);
      json.Integer("eta", row.Eta).Integer("eta_e", row.EtaE).Number("k", row.K);
      json.Number("fu_li_d", row.Determined ? row.D : NAN);
      json.Number("fu_li_f", row.Determined ? row.F : NAN);
      json.Number("fay_wu_h", row.FayWu.H);
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace ovelt
