#include "core/coding_flag.h"

#include <vector>

#include "core/coding_map.h"

namespace ovelt {

namespace {

class CodingFlagWalk {
 public:
  explicit CodingFlagWalk(ActiveData& ad) : ad_(ad) {}

  void Run() {
    ad_.CodingFlag.assign(static_cast<size_t>(ad_.NumSites) + 1, "");
    for (int32_t site = 1; site <= ad_.NumSites; ++site) {
      const int16_t position = ad_.CodonPosition[static_cast<size_t>(site)];
      if (position == 0) {
        Flag(site) = kNoncodingFlag;
      } else if (position == 1) {
        DropPending();
        pending_.push_back(site);
      } else if (position == 2 && pending_.size() == 1) {
        pending_.push_back(site);
      } else if (position == 3 && pending_.size() == 2) {
        pending_.push_back(site);
        FlagCodon();
        pending_.clear();
      } else {
        // Out of order: neither this site nor the open codon will be completed.
        DropPending();
        Flag(site) = kIncompleteCodonFlag;
      }
    }
    DropPending();
  }

 private:
  std::string& Flag(int32_t site) { return ad_.CodingFlag[static_cast<size_t>(site)]; }

  void DropPending() {
    for (const int32_t site : pending_) Flag(site) = kIncompleteCodonFlag;
    pending_.clear();
  }

  char Cell(int32_t site) const {
    return ad_.IncMatrix.seqs() >= 1 && site <= ad_.IncMatrix.sites() ? ad_.IncMatrix.at(site, 1)
                                                                      : '?';
  }

  void FlagCodon() {
    const int index = CodonIndex(Cell(pending_[0]), Cell(pending_[1]), Cell(pending_[2]));
    const std::string name =
        index == 0 ? "???" : AminoAcidThreeLetter(ad_.GeneticCode.Translate(index));
    for (size_t k = 0; k < 3; ++k) Flag(pending_[k]) = std::string{digit_, name[k]};
    digit_ = digit_ == '1' ? '2' : '1';
  }

  ActiveData& ad_;
  std::vector<int32_t> pending_;
  char digit_ = '1';
};

}  // namespace

void RebuildCodingTables(ActiveData& ad) {
  ad.CodonPosition.resize(static_cast<size_t>(ad.NumSites) + 1, 0);
  ad.GeneticCode = BuildGeneticCode(ad.Format.GeneticCodeIndex);
  CodingFlagWalk(ad).Run();
  ad.LastCodingSite = BuscaUltimoCodSitio(ad);
}

}  // namespace ovelt
