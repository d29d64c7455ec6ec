#include "analyses/polymorphism/overview/multidomain_table.h"

#include "analyses/polymorphism/common/fs_text.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

std::string GcCell(const std::optional<GcShare>& share) {
  return share ? Format(share->Content, "0.000") : "   n.a.";
}

std::string MarkCell(const NeutralityValue& v) { return v.Value ? v.Mark : "n.d."; }

}  // namespace

const std::vector<std::string>& MultiDomainLongHeads() {
  static const std::vector<std::string> heads = {
      "DataFile",      "Population",      "Domain",     "SitesRegion", "SampleSize",
      "Sites",         "NetSites",        "S_SegSites", "Eta_NumMuts", "h_NumHaps",
      "Hd_HapDiversity", "Var_Hd",        "Pi_NucDiversity", "Var_Pi", "ThetaNuc",
      "Theta_PG",      "k_NucDiffs",      "Syn_Muts",   "NoSyn_Muts",  "D_Tajima",
      "D_Signif",      "D*_FuLi",         "D*_Signif",  "F*_FuLi",     "F*_Signif",
      "Fs_Fu",         "G+C_NonCoding",   "G+C_Coding", "G+C_Total"};
  return heads;
}

const std::vector<std::string>& MultiDomainShortHeads() {
  static const std::vector<std::string> heads = {
      "DataFile", "Population", "Region", "SitesRegion", "n",        "Sites",   "NetSites",
      "S",        "Eta",        "Hap",    "Hd",          "VarHd",    "Pi",      "VarPi",
      "Theta",    "ThetaG",     "AvNumDif", "SilMuts",   "NoSynMut", "TajimaD", "SigD",
      "FuLiD*",   "SigD*",      "FuLiF*", "SigF",        "FuFs",     "G+Cn",    "G+Cc",
      "G+C"};
  return heads;
}

std::string TestCell(const NeutralityValue& v) {
  if (!v.Value) return "   n.d.";
  std::string cell = *v.Value >= 0.0 ? " " : "";
  cell += Format(*v.Value, "0.0000");
  return cell;
}

std::vector<std::string> MultiDomainCells(const MultiDomainRow& row) {
  const OverviewStats& o = row.Stats;
  const std::optional<CodonChanges>& coding = o.Changes;
  return {
      Format(row.DataFile, "!@@@@@@@@@@@@@@@"),
      Format(row.Population, "!@@@@@@@@@@@@@@@"),
      Format(row.Region, "@@@@@@@@@@@@@"),
      Format(row.SitesRegion, "@@@@@"),
      Format(o.SampleSize, "@@@@@"),
      Format(o.Sites, "@@@@@@@"),
      Format(o.NetSites, "@@@@@@@"),
      Format(o.SegSites, "@@@@@"),
      Format(o.Mutations, "@@@@@"),
      Format(o.Haplotypes, "@@@@@"),
      o.Hd ? Format(*o.Hd, "0.000") : "n.d.",
      o.Hd ? Format(o.VarHd.value_or(0.0), "0.00000") : "n.d.",
      Format(o.Pi.value_or(0.0), "0.00000"),
      o.VarPi ? Format(*o.VarPi, "0.00000") : "n.d.",
      Format(o.ThetaPerSite.value_or(0.0), "0.00000"),
      Format(o.ThetaPerSequence.value_or(0.0), "0.00000"),
      Format(o.K.value_or(0.0), "0.000"),
      coding ? Format(coding->Synonymous, "@@@@@") : "n.a.",
      coding ? Format(coding->Nonsynonymous, "@@@@@") : "n.a.",
      TestCell(o.TajimaD),
      MarkCell(o.TajimaD),
      TestCell(o.FuLiDStar),
      MarkCell(o.FuLiDStar),
      TestCell(o.FuLiFStar),
      MarkCell(o.FuLiFStar),
      o.Fs ? FsText(o.Fs->Fs, "0.000") : "n.d.",
      GcCell(o.Gc.NonCoding),
      GcCell(o.Gc.Coding),
      GcCell(o.Gc.Total),
  };
}

}  // namespace ovelt
