#include "formats/sequential_matrix.h"

#include <algorithm>

#include "core/active_data.h"
#include "formats/read_messages.h"

namespace ovelt {
SequentialMatrix::SequentialMatrix(std::string path, int32_t known_sites)
    : path_(std::move(path)), sites_(known_sites) {}

SequenceCells& SequentialMatrix::Begin(std::string_view name) {
  if (current() >= kMaxSequences)
    throw ReadError(DataFileErrorText(path_, TooManySequencesSentence()));
  names_.push_back(FixedName(std::string(name)));
  if (current() > 1 && sites_ > 0) {
    // The length is known: the cells go straight to their place in the matrix.
    cells_.StartInto(matrix_.append_unfilled_sequence(), static_cast<size_t>(sites_));
  } else {
    cells_.Start(sites_ >= 0 ? static_cast<size_t>(sites_) : SequenceCells::kNoLimit);
  }
  return cells_;
}

MatchRule SequentialMatrix::Match() const {
  if (current() <= 1) return {MatchRule::kRefuse, nullptr};
  return {MatchRule::kCopy, matrix_.sequence(1)};
}

bool SequentialMatrix::End(int64_t bytes_left) {
  if (current() == 1) {
    if (sites_ >= 0 && cells_.count() != static_cast<size_t>(sites_)) return false;
    sites_ = static_cast<int32_t>(cells_.count());
    matrix_.set_sites(sites_);
    // Each later sequence takes at least one byte per site in the file.
    if (sites_ > 0) {
      const int64_t room = 1 + std::max<int64_t>(bytes_left, 0) / sites_;
      matrix_.reserve_sequences(std::min<int64_t>(room, kMaxSequences));
    }
  } else if (cells_.count() != static_cast<size_t>(sites_)) {
    return false;
  }
  if (!cells_.in_place()) matrix_.append_sequence(cells_.data());
  return true;
}

void SequentialMatrix::MoveInto(LoadedFile& out) {
  cells_.Release();
  out.NumSites = std::max(sites_, 0);
  if (current() == 0) matrix_.set_sites(out.NumSites);
  out.Matrix = std::move(matrix_);
  out.Names = std::move(names_);
}

}  // namespace ovelt
