#pragma once
// Dense alignment matrix of single-character cells, indexed (site, sequence) from 1.
// The site index varies fastest: the cells of one sequence are contiguous, so a reader can
// append a sequence and a loop along one sequence walks memory in order.
//
// Copies share their cells until one of them is written to (copy on write). The included
// layer and a selection of all sequences are therefore free until an exclusion forces a copy.

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace ovelt {

// Leaves new cells uninitialised when the matrix grows: a reader writes each cell once, into its
// final place, and the pages are first touched then.
template <typename T>
struct UninitialisedAllocator : std::allocator<T> {
  template <typename U>
  struct rebind {
    using other = UninitialisedAllocator<U>;
  };
  UninitialisedAllocator() = default;
  template <typename U>
  explicit UninitialisedAllocator(const UninitialisedAllocator<U>& /*other*/) {}
  template <typename U>
  void construct(U* p) {
    ::new (static_cast<void*>(p)) U;
  }
  template <typename U, typename... Args>
  void construct(U* p, Args&&... args) {
    ::new (static_cast<void*>(p)) U(std::forward<Args>(args)...);
  }
};

class SeqMatrix {
 public:
  SeqMatrix() = default;
  SeqMatrix(int32_t sites, int32_t seqs, char fill = '?');

  [[nodiscard]] int32_t sites() const { return sites_; }
  [[nodiscard]] int32_t seqs() const { return seqs_; }
  [[nodiscard]] bool empty() const { return sites_ == 0 || seqs_ == 0; }

  // 1-based access; index 0 of either dimension is never read.
  [[nodiscard]] char at(int32_t site, int32_t seq) const { return (*cells_)[offset(site, seq)]; }
  void set(int32_t site, int32_t seq, char cell) {
    detach();
    (*cells_)[offset(site, seq)] = cell;
  }

  // Pointer to site 1 of sequence `seq`; `sites()` cells follow.
  [[nodiscard]] const char* sequence(int32_t seq) const { return cells_->data() + offset(1, seq); }
  char* mutable_sequence(int32_t seq) {
    detach();
    return cells_->data() + offset(1, seq);
  }

  // Appends one sequence (`sites()` cells copied from `cells`).
  void append_sequence(const char* cells);
  // Appends one sequence whose `sites()` cells the caller writes at the pointer returned, before
  // anything else reads the matrix. The pointer (and those of earlier sequences) stays valid
  // until the next append, which may move the cells unless reserve_sequences made room.
  char* append_unfilled_sequence();
  // Reserves room for `seqs` sequences, so that appending does not reallocate.
  void reserve_sequences(int64_t seqs);
  // Sets the site count of an empty matrix (before the first sequence is appended).
  void set_sites(int32_t sites);

  // True when this matrix shares its cells with another (for memory tests).
  [[nodiscard]] bool shares_cells_with(const SeqMatrix& other) const {
    return cells_ && cells_ == other.cells_;
  }

 private:
  [[nodiscard]] size_t offset(int32_t site, int32_t seq) const {
    return static_cast<size_t>(seq - 1) * static_cast<size_t>(sites_) +
           static_cast<size_t>(site - 1);
  }
  void detach();

  int32_t sites_ = 0;
  int32_t seqs_ = 0;
  using Cells = std::vector<char, UninitialisedAllocator<char>>;
  std::shared_ptr<Cells> cells_ = std::make_shared<Cells>();
};

}  // namespace ovelt
