#include "analyses/divergence/synonymous/synonymous_pair_table.h"

#include "analyses/divergence/common/pair_means.h"
#include "core/utf8_text.h"
#include "output/format_mask.h"

namespace ovelt {

namespace {

constexpr const char* kSynonymousHead =
    "Seq 1       Seq 2        SynDif   SynPos    Ks    NSynDif  NSynPos    Ka";
constexpr const char* kSilentHead =
    "Seq 1       Seq 2       SilentDif SilentPos    Ks    NSynDif  NSynPos    Ka";

std::string ShortName(const std::string& name) {
  return name.substr(0, BytesOfCharacters(name, 10));
}

std::string Distance(float differences, float sites) {
  std::string text = "  n.a.";
  if (sites > 0.0F) {
    if (const auto jc = JukesCantorOf(differences / sites)) text = Format(*jc, "0.0000");
  }
  return Format(text, "@@@@@@");
}

// The first row of pair (i, i + 1).
int64_t FirstRowOf(int32_t n, int32_t i) {
  return static_cast<int64_t>(i - 1) * (2 * static_cast<int64_t>(n) - i) / 2;
}

}  // namespace

std::vector<std::string> SynonymousPairTitles(bool silent) {
  return {"Seq 1",   "Seq 2", silent ? "SilentDif" : "SynDif", silent ? "SilentPos" : "SynPos",
          "Ks",      "NSynDif", "NSynPos", "Ka"};
}

std::string SynonymousPairTextHead(bool silent) { return silent ? kSilentHead : kSynonymousHead; }

std::pair<int32_t, int32_t> PairOfRow(int32_t n, int64_t row) {
  int32_t low = 1, high = n - 1;  // the last i whose first row is not above `row`
  while (low < high) {
    const int32_t mid = low + (high - low + 1) / 2;
    if (FirstRowOf(n, mid) <= row) {
      low = mid;
    } else {
      high = mid - 1;
    }
  }
  return {low, static_cast<int32_t>(low + 1 + (row - FirstRowOf(n, low)))};
}

std::vector<std::string> SynonymousPairCells(const SynonymousResult& r, int32_t i, int32_t j) {
  const SynonymousPairs& p = *r.Pairs;
  const float syn_pos = p.SynPos.At(i, j);
  return {ShortName(r.PairNames[static_cast<size_t>(i)]),
          ShortName(r.PairNames[static_cast<size_t>(j)]),
          Format(Format(p.SynDif.At(i, j), "0.00"), "@@@@@@@"),
          Format(syn_pos, syn_pos < 9999.0F ? "0.00" : "0.0"),
          Distance(p.SynDif.At(i, j), syn_pos),
          Format(p.NSynDif.At(i, j), "0.00"),
          Format(p.NSynPos.At(i, j), "0.00"),
          Distance(p.NSynDif.At(i, j), p.NSynPos.At(i, j))};
}

}  // namespace ovelt
