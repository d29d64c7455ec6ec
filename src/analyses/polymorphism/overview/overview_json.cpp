#include "analyses/polymorphism/overview/overview_json.h"

namespace ovelt {

namespace {

void WriteGc(JsonText& json, std::string_view key, const GcShare& share) {
  if (!share.Applicable) {
    json.Null(key);
    return;
  }
  json.BeginObject(key).Number("Content", share.Content).Number("Sites", share.Sites).EndObject();
}

void WriteTest(JsonText& json, std::string_view key, const NeutralityValue& v) {
  json.BeginObject(key).Bool("Determined", v.Determined);
  if (v.Determined)
    json.Number("Value", v.Value);
  else
    json.Null("Value");
  json.String("Mark", v.Mark).EndObject();
}

}  // namespace

void WriteJson(JsonText& json, const OverviewStats& o, std::string_view key) {
  json.BeginObject(key)
      .Bool("UseMutations", o.UseMutations)
      .Integer("SampleSize", o.SampleSize)
      .Integer("Sites", o.Sites)
      .Integer("NetSites", o.NetSites)
      .Integer("SegSites", o.SegSites)
      .Integer("Mutations", o.Mutations);
  json.BeginObject("GC");
  WriteGc(json, "NonCoding", o.Gc.NonCoding);
  WriteGc(json, "Coding", o.Gc.Coding);
  WriteGc(json, "Total", o.Gc.Total);
  json.EndObject();
  json.Integer("Haplotypes", o.Haplotypes);
  if (o.HaplotypesDetermined)
    json.Number("Hd", o.Hd).Number("VarHd", o.VarHd);
  else
    json.Null("Hd").Null("VarHd");
  json.Number("Pi", o.Pi);
  if (o.VarPiDetermined)
    json.Number("VarPi", o.VarPi);
  else
    json.Null("VarPi");
  json.Number("k", o.K)
      .Number("ThetaPerSite", o.ThetaPerSite)
      .Number("ThetaPerSequence", o.ThetaPerSequence)
      .Bool("TestsComputed", o.TestsComputed);
  WriteTest(json, "TajimaD", o.TajimaD);
  WriteTest(json, "FuLiDStar", o.FuLiDStar);
  WriteTest(json, "FuLiFStar", o.FuLiFStar);
  if (o.FsDetermined)
    json.Number("Fs", o.Fs).Number("StrobeckS", o.StrobeckS).Number("PEqual", o.PEqual);
  else
    json.Null("Fs").Null("StrobeckS").Null("PEqual");
  if (o.Changes.Applicable)
    json.Integer("Synonymous", o.Changes.Synonymous)
        .Integer("Nonsynonymous", o.Changes.Nonsynonymous);
  else
    json.Null("Synonymous").Null("Nonsynonymous");
  json.EndObject();
}

void WriteJson(JsonText& json, const std::vector<MultiDomainRow>& rows) {
  json.BeginObject().BeginArray("Rows");
  for (const MultiDomainRow& row : rows) {
    json.BeginObject()
        .String("DataFile", row.DataFile)
        .String("Population", row.Population)
        .String("Domain", row.Region)
        .Integer("SitesRegion", row.SitesRegion);
    WriteJson(json, row.Stats, "Stats");
    json.EndObject();
  }
  json.EndArray().EndObject();
}

}  // namespace ovelt
