#include "core/stop_codon.h"

#include <initializer_list>

#include "core/coding_map.h"

namespace ovelt {

std::optional<StopCodonQuestion> STOPenelFinal(const ActiveData& ad) {
  const int32_t last = BuscaUltimoCodSitio(ad);
  if (last < 1) return std::nullopt;
  int32_t a = 0;
  switch (ad.CodonPosition[static_cast<size_t>(last)]) {
    case 3: if (last >= 3) a = last - 2; break;
    case 2: if (last >= 5) a = last - 4; break;
    case 1: if (last >= 4) a = last - 3; break;
    default: break;
  }
  if (a < 1) return std::nullopt;
  const int32_t b = a + 1, c = a + 2;
  const auto& pos = ad.CodonPosition;
  if (pos[static_cast<size_t>(a)] != 1 || pos[static_cast<size_t>(b)] != 2 ||
      pos[static_cast<size_t>(c)] != 3) {
    return std::nullopt;
  }
  if (ad.IncMatrix.seqs() < 1 || c > ad.IncMatrix.sites()) return std::nullopt;
  const int codon = CodonIndex(ad.IncMatrix.at(a, 1), ad.IncMatrix.at(b, 1), ad.IncMatrix.at(c, 1));
  if (!BuildGeneticCode(ad.Format.GeneticCodeIndex).IsStop(codon)) return std::nullopt;
  StopCodonQuestion question{a, b, c, ""};
  question.text = "The last codon (sites: " + std::to_string(a) + ", " + std::to_string(b) +
                  ", " + std::to_string(c) +
                  ") is an stop codon. Stop codons should be assigned as a noncoding positions.\n"
                  "Do you want that Ovelt assign this stop codon as a noncoding position ?";
  return question;
}

bool ApplyStopAsNonCoding(ActiveData& ad, int32_t a, int32_t b, int32_t c) {
  bool changed = false;
  for (const int32_t site : {a, b, c}) {
    if (site < 1 || site >= static_cast<int32_t>(ad.CodonPosition.size())) continue;
    int16_t& position = ad.CodonPosition[static_cast<size_t>(site)];
    if (position != 0) changed = true;
    position = 0;
  }
  ad.LastCodingSite = BuscaUltimoCodSitio(ad);
  return changed;
}

}  // namespace ovelt
