#include "analyses/polymorphism/diversity/dna_polymorphism_json.h"

namespace ovelt {

void WriteJson(JsonText& json, const DnaPolResult& r) {
  json.BeginObject();
  json.String("analysis", "DNA Polymorphism");
  json.Integer("region_from", r.RegionFrom).Integer("region_to", r.RegionTo);
  json.Integer("sequences", r.Sequences);
  json.Bool("missing_data", r.MissingData);
  if (r.Deletion) {
    const PairwiseDeletion& d = *r.Deletion;
    json.BeginObject("pairwise_deletion");
    json.Integer("excluded_gap_sites", d.ExcludedGapSites);
    json.Integer("comparisons", d.Comparisons);
    json.Number("average_sites", d.AverageSites);
    json.Number("average_differences", d.AverageDifferences);
    json.Number("pi_pairwise", d.PiPairwise);
    json.Integer("sites_analyzed", d.SitesAnalyzed);
    json.Integer("segregating_sites", d.SegSites);
    json.Number("k", d.K).Number("pi", d.Pi);
    json.Number("theta_w_sequence", d.ThetaWSequence).Number("theta_w_site", d.ThetaWSite);
    json.EndObject();
    json.EndObject();
    return;
  }
  json.Integer("net_sites", r.Stats.NetSites);
  json.Integer("segregating_sites", r.Stats.SegSites);
  json.Number("mutations", r.Stats.Mutations);
  json.Integer("haplotypes", r.Haplotypes.Haplotypes);
  json.Number("hd", r.Haplotypes.Hd).Number("var_hd", r.Haplotypes.VarHd);
  json.Number("k", r.Stats.AvgDiffs).Number("pi", r.Stats.PiValue);
  if (r.SamplingVariance) json.Number("sampling_variance_pi", r.SamplingVariance->Variance);
  if (r.PiJC) json.Number("pi_jc", *r.PiJC);
  if (r.Variances) {
    const ThetaVariances& v = *r.Variances;
    json.BeginObject("variances");
    json.Number("theta_eta", v.ThetaEta).Number("theta_w", v.ThetaW);
    json.Number("var_theta_no_recombination", v.VarThetaNoRec);
    json.Number("var_theta_free_recombination", v.VarThetaFreeRec);
    json.Number("finite_sites_theta_pi", v.FiniteFromPi);
    json.Number("finite_sites_theta_s", v.FiniteFromS);
    json.Number("finite_sites_theta_eta", v.FiniteFromEta);
    json.Number("k", v.K);
    json.Number("stochastic_var_k_no_recombination", v.StochasticNoRec);
    json.Number("sampling_var_k_no_recombination", v.SamplingNoRec);
    json.Number("total_var_k_no_recombination", v.TotalNoRec);
    json.Number("stochastic_var_k_free_recombination", v.StochasticFreeRec);
    json.Number("sampling_var_k_free_recombination", v.SamplingFreeRec);
    json.Number("total_var_k_free_recombination", v.TotalFreeRec);
    json.Number("theta_w_sequence", v.ThetaWSequence);
    json.Number("var_theta_sequence_no_recombination", v.VnSequence);
    json.Number("var_theta_sequence_free_recombination", v.VfSequence);
    json.EndObject();
  }
  if (r.Windows) {
    const PiThetaWindows& w = *r.Windows;
    json.BeginObject("sliding_window");
    json.Integer("window_length", w.Geometry.WindowLength)
        .Integer("step_size", w.Geometry.StepSize);
    json.Bool("gaps_in_window", w.Geometry.GapsInWindow);
    json.BeginArray("windows");
    for (const PiThetaWindow& row : w.Rows) {
      json.BeginObject();
      json.Integer("start", row.Window.Start).Integer("end", row.Window.End);
      json.Integer("net_sites", row.Window.NetSites).Integer("midpoint", row.Window.Midpoint);
      json.Number("pi", row.Pi).Number("theta", row.Theta).Integer("s", row.SegSites);
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndObject();
}

}  // namespace ovelt
