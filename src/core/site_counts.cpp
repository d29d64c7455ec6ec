#include "core/site_counts.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace ovelt {
namespace {

constexpr std::array<char, 5> kCounted = {'A', 'C', 'G', 'T', '-'};

void AddCell(SiteCounts& counts, char cell) {
  switch (cell) {
    case 'A':
      ++counts.nucleotide[0];
      break;
    case 'C':
      ++counts.nucleotide[1];
      break;
    case 'G':
      ++counts.nucleotide[2];
      break;
    case 'T':
      ++counts.nucleotide[3];
      break;
    case '-':
      ++counts.gap;
      break;
    default:
      break;
  }
}

#if defined(__SSE2__)
constexpr size_t kLane = 16;
constexpr int32_t kRowsPerRound = 255;  // an 8-bit counter holds up to 255 matches
constexpr size_t kMaxWidth = 4096;

// Counts the sites [first, first + width) for a width that is a multiple of 16: each row adds
// the 16-byte results of comparing its cells with each letter to 8-bit counters, which are
// moved into the 32-bit totals every 255 rows.
void CountLanes(const SeqMatrix& matrix, int32_t seqs, int32_t first, size_t width,
                SiteCounts* out) {
  alignas(16) static thread_local uint8_t small[kCounted.size()][kMaxWidth];
  __m128i letter[kCounted.size()];
  for (size_t c = 0; c < kCounted.size(); ++c) letter[c] = _mm_set1_epi8(kCounted[c]);
  const size_t offset = static_cast<size_t>(first - 1);
  for (int32_t seq = 1; seq <= seqs; seq += kRowsPerRound) {
    const int32_t last = std::min(seqs, seq + kRowsPerRound - 1);
    for (auto& row : small) std::memset(row, 0, width);
    for (int32_t s = seq; s <= last; ++s) {
      const char* cells = matrix.sequence(s) + offset;
      // The same sites of the next sequence lie a whole row further on, where no hardware
      // prefetcher looks: ask for them while this row is counted.
      const char* next = s < seqs ? matrix.sequence(s + 1) + offset : cells;
      for (size_t k = 0; k < width; k += kLane) {
        if (k % 64 == 0) _mm_prefetch(next + k, _MM_HINT_T0);
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(cells + k));
        for (size_t c = 0; c < kCounted.size(); ++c) {
          auto* counter = reinterpret_cast<__m128i*>(small[c] + k);
          *counter = _mm_sub_epi8(*counter, _mm_cmpeq_epi8(v, letter[c]));
        }
      }
    }
    for (size_t k = 0; k < width; ++k) {
      for (size_t c = 0; c < 4; ++c) out[k].nucleotide[c] += small[c][k];
      out[k].gap += small[4][k];
    }
  }
}
#endif

}  // namespace

SiteCounts CountSitePlain(const SeqMatrix& matrix, int32_t seqs, int32_t site) {
  SiteCounts counts;
  for (int32_t seq = 1; seq <= seqs; ++seq) AddCell(counts, matrix.at(site, seq));
  return counts;
}

void CountSites(const SeqMatrix& matrix, int32_t seqs, int32_t first, std::span<SiteCounts> out) {
  std::fill(out.begin(), out.end(), SiteCounts{});
  size_t done = 0;
#if defined(__SSE2__)
  while (out.size() - done >= kLane) {
    const size_t width = std::min(kMaxWidth, (out.size() - done) / kLane * kLane);
    CountLanes(matrix, seqs, first + static_cast<int32_t>(done), width, out.data() + done);
    done += width;
  }
#endif
  for (size_t k = done; k < out.size(); ++k) {
    out[k] = CountSitePlain(matrix, seqs, first + static_cast<int32_t>(k));
  }
}

}  // namespace ovelt
