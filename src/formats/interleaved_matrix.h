#pragma once
// Builds the matrix of a file laid out in blocks (interleaved MEGA and PHYLIP): every sequence
// grows block by block, so each keeps its own cells until the end, when matching symbols are
// resolved against the then complete first sequence and the sequences move into the matrix.

#include <cstdint>
#include <string>
#include <vector>

#include "formats/read_file.h"
#include "formats/sequence_cells.h"

namespace ovelt {

class InterleavedMatrix {
 public:
  // `path` names the file in reports; no sequence may grow beyond `limit` cells.
  explicit InterleavedMatrix(std::string path, size_t limit = SequenceCells::kNoLimit);

  // Adds a sequence and returns its number (from 1). Beyond 32767 the file is refused as bad.
  int Add(std::string name);
  [[nodiscard]] int count() const { return static_cast<int>(cells_.size()) - 1; }
  [[nodiscard]] SequenceCells& cells(int seq) { return cells_[static_cast<size_t>(seq)]; }
  [[nodiscard]] const SequenceCells& cells(int seq) const {
    return cells_[static_cast<size_t>(seq)];
  }
  // The full name as read (before the cut to 20 characters).
  [[nodiscard]] const std::string& name(int seq) const { return names_[static_cast<size_t>(seq)]; }
  // The first sequence refuses the matching symbol; later ones resolve it at the end.
  [[nodiscard]] static MatchRule Match(int seq) {
    return {seq == 1 ? MatchRule::kRefuse : MatchRule::kDefer, nullptr};
  }

  // Hands the sequences over; all of them must have the length of the first.
  void MoveInto(LoadedFile& out);

 private:
  std::string path_;
  size_t limit_;
  std::vector<SequenceCells> cells_;
  std::vector<std::string> names_;
};

}  // namespace ovelt
