#pragma once
// Builds the matrix of a file whose sequences come one after the other (FASTA, NBRF/PIR,
// sequential MEGA and PHYLIP). The first sequence fixes the number of sites, unless the file's
// header gave it; each later sequence is checked against it and appended at once, so memory stays
// near one byte per cell: the matrix is reserved after the first sequence for as many sequences as
// the rest of the file can hold, and appending never has to move it.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/seq_matrix.h"
#include "formats/read_file.h"
#include "formats/sequence_cells.h"

namespace ovelt {

class SequentialMatrix {
 public:
  // `path` names the file in reports; `known_sites` is the length a header gave, or -1.
  explicit SequentialMatrix(std::string path, int32_t known_sites = -1);

  // Starts the next sequence and returns the cells to fill. A sequence beyond the 32767 that a
  // 16-bit count can hold is refused as a bad file.
  SequenceCells& Begin(std::string_view name);
  // What a matching symbol does in the current sequence.
  [[nodiscard]] MatchRule Match() const;
  // 1 while the first sequence is read, and so on.
  [[nodiscard]] int current() const { return static_cast<int>(names_.size()) - 1; }

  // Ends the current sequence. False when its length differs from the number of sites.
  // `bytes_left` (what the file still holds) bounds the number of sequences still to come.
  [[nodiscard]] bool End(int64_t bytes_left);

  // Hands the sequences over (matrix, names, NumSites).
  void MoveInto(LoadedFile& out);

 private:
  std::string path_;
  int32_t sites_;
  SequenceCells cells_;
  SeqMatrix matrix_;
  std::vector<std::string> names_{""};
};

}  // namespace ovelt
