#include "core/seq_matrix.h"

#include <algorithm>
#include <stdexcept>

namespace ovelt {

SeqMatrix::SeqMatrix(int32_t sites, int32_t seqs, char fill)
    : sites_(sites),
      seqs_(seqs),
      cells_(std::make_shared<Cells>(
          static_cast<size_t>(std::max(sites, 0)) * static_cast<size_t>(std::max(seqs, 0)), fill)) {
}

void SeqMatrix::detach() {
  if (cells_.use_count() > 1) cells_ = std::make_shared<Cells>(*cells_);
}

void SeqMatrix::set_sites(int32_t sites) {
  if (seqs_ != 0) throw std::logic_error("SeqMatrix::set_sites on a matrix with sequences");
  sites_ = sites;
}

void SeqMatrix::reserve_sequences(int64_t seqs) {
  detach();
  cells_->reserve(static_cast<size_t>(seqs) * static_cast<size_t>(sites_));
}

char* SeqMatrix::append_unfilled_sequence() {
  detach();
  const size_t start = cells_->size();
  cells_->resize(start + static_cast<size_t>(sites_));
  ++seqs_;
  return cells_->data() + start;
}

void SeqMatrix::append_sequence(const char* cells) {
  detach();
  cells_->insert(cells_->end(), cells, cells + sites_);
  ++seqs_;
}

}  // namespace ovelt
