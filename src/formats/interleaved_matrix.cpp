#include "formats/interleaved_matrix.h"

#include <stdexcept>

#include "core/active_data.h"
#include "formats/read_messages.h"

namespace ovelt {
InterleavedMatrix::InterleavedMatrix(std::string path, size_t limit)
    : path_(std::move(path)), limit_(limit), cells_(1), names_(1) {}

int InterleavedMatrix::Add(std::string name) {
  if (count() >= kMaxSequences) 
    throw ReadError(DataFileErrorText(path_, TooManySequencesSentence()));
  cells_.emplace_back();
  cells_.back().Start(limit_);
  names_.push_back(std::move(name));
  return count();
}

void InterleavedMatrix::MoveInto(LoadedFile& out) {
  const int n = count();
  out.Names.assign(1, "");
  if (n == 0) {
    out.NumSites = 0;
    out.Matrix = SeqMatrix();
    return;
  }
  const size_t sites = cells_[1].count();
  for (int s = 2; s <= n; ++s) {
    if (cells(s).count() != sites) throw std::logic_error("InterleavedMatrix: unequal lengths");
  }
  SeqMatrix matrix;
  matrix.set_sites(static_cast<int32_t>(sites));
  matrix.reserve_sequences(n);
  const char* first = cells_[1].data();
  for (int s = 1; s <= n; ++s) {
    char* own = cells(s).data();
    for (size_t i = 0; i < sites; ++i) {
      if (own[i] == kDeferredMatchCell) own[i] = first[i];
    }
    matrix.append_sequence(own);
    if (s > 1) cells(s).Release();  // the first is still needed for the later ones
  }
  cells_[1].Release();
  out.NumSites = static_cast<int32_t>(sites);
  out.Matrix = std::move(matrix);
  for (int s = 1; s <= n; ++s) out.Names.push_back(FixedName(names_[static_cast<size_t>(s)]));
}

}  // namespace ovelt
