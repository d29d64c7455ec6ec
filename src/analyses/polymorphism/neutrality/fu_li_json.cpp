#include "analyses/polymorphism/neutrality/fu_li_json.h"

#include "analyses/polymorphism/neutrality/neutrality_significance.h"

namespace ovelt {

void WriteJson(JsonText& json, const FuLiTestResult& r) {
  const NeutralityTotals& t = r.Totals;
  json.BeginObject();
  json.String("analysis", "Fu and Li's Tests");
  json.Integer("region_from", r.RegionFrom).Integer("region_to", r.RegionTo);
  json.Integer("sequences", r.Sequences);
  json.Bool("use_mutations", r.UseMutations);
  json.Integer("net_sites", t.NetSites).Integer("segregating_sites", t.SegSites);
  json.Integer("mutations", t.TotalMutations).Integer("eta", t.Eta).Integer("eta_s", t.EtaS);
  json.Number("k", t.K).Number("pi", r.Pi);
  json.Number("theta_k", r.ThetaK).Number("theta_eta_s", r.ThetaEtaS);
  json.Number("theta_eta", r.ThetaEta);
  if (r.Determined) {
    json.Number("d_star", r.DStar);
    json.String("d_star_significance",
                MarkText(SignificanceFuLi(r.DStar, FuLiTable::kDStar, r.Sequences)));
    json.Number("f_star", r.FStar);
    json.String("f_star_significance",
                MarkText(SignificanceFuLi(r.FStar, FuLiTable::kFStar, r.Sequences)));
  } else {
    json.Null("d_star").Null("f_star");
  }
  if (r.Haplotypes) {
    json.Integer("haplotypes", r.Haplotypes->Haplotypes);
    json.Number("hd", r.Haplotypes->Hd).Number("var_hd", r.Haplotypes->VarHd);
  }
  if (r.Fs) {
    json.Number("fs", r.Fs->Fs).Number("strobeck_s", r.Fs->StrobeckS);
    json.Number("p_equal", r.Fs->PEqual);
  }
  if (r.Windows) {
    const FuLiWindows& w = *r.Windows;
    json.BeginObject("sliding_window");
    json.Integer("window_length", w.Geometry.WindowLength)
        .Integer("step_size", w.Geometry.StepSize);
    json.Bool("gaps_in_window", w.Geometry.GapsInWindow);
    json.BeginArray("windows");
    for (const FuLiWindow& row : w.Rows) {
      json.BeginObject();
      json.Integer("start", row.Window.Start).Integer("end", row.Window.End);
      json.Integer("net_sites", row.Window.NetSites).Integer("midpoint", row.Window.Midpoint);
      json.Integer("eta", row.Eta).Integer("eta_s", row.EtaS).Number("k", row.K);
      if (row.Determined) {
        json.Number("d_star", row.DStar).Number("f_star", row.FStar);
      } else {
        json.Null("d_star").Null("f_star");
      }
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace ovelt
