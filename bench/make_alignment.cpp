// Writes a FASTA alignment of n sequences x L sites for benchmarks and examples.
// Sequences descend from one random ancestor through a random bifurcating genealogy (sequences
// are split into nested groups), so that the sites carry singletons, informative sites and a few
// three- and four-variant sites, as real samples do. Optional gap runs mimic indels.
//
//   make_alignment N SITES SEED OUT.fas [--snp-rate R] [--gap-rate G] [--line W]

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

struct Options {
  long n = 0, sites = 0;
  unsigned seed = 1;
  std::string out;
  double snp_rate = 0.05;
  double gap_rate = 0.0;
  long line = 60;
};

bool Parse(int argc, char** argv, Options& o) {
  if (argc < 5) return false;
  o.n = std::atol(argv[1]);
  o.sites = std::atol(argv[2]);
  o.seed = static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10));
  o.out = argv[4];
  for (int i = 5; i + 1 < argc; i += 2) {
    if (!std::strcmp(argv[i], "--snp-rate")) o.snp_rate = std::atof(argv[i + 1]);
    else if (!std::strcmp(argv[i], "--gap-rate")) o.gap_rate = std::atof(argv[i + 1]);
    else if (!std::strcmp(argv[i], "--line")) o.line = std::atol(argv[i + 1]);
    else return false;
  }
  return o.n > 0 && o.sites > 0 && o.line > 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options o;
  if (!Parse(argc, argv, o)) {
    std::fprintf(stderr,
                 "usage: make_alignment N SITES SEED OUT.fas [--snp-rate R] [--gap-rate G] "
                 "[--line W]\n");
    return 2;
  }
  std::mt19937_64 rng(o.seed);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const char bases[4] = {'A', 'C', 'G', 'T'};

  // Ancestor.
  std::vector<char> ancestor(static_cast<size_t>(o.sites));
  for (auto& c : ancestor) c = bases[rng() % 4];

  // Mutations: each polymorphic site carries a derived base in a contiguous block of sequences
  // [lo, hi) (a clade when the sequences are listed in tree order); a few sites get a second
  // mutation in another block.
  struct Mutation {
    long site;
    long lo, hi;
    char base;
  };
  std::vector<std::vector<Mutation>> by_first_seq(static_cast<size_t>(o.n));
  for (long s = 0; s < o.sites; ++s) {
    if (unit(rng) >= o.snp_rate) continue;
    const int hits = unit(rng) < 0.1 ? 2 : 1;
    for (int h = 0; h < hits; ++h) {
      const long size = 1 + static_cast<long>(std::pow(unit(rng), 2.0) * static_cast<double>(o.n - 1));
      const long lo = static_cast<long>(rng() % static_cast<uint64_t>(o.n - size + 1));
      char base = bases[rng() % 4];
      if (base == ancestor[static_cast<size_t>(s)]) base = bases[(std::strchr(bases, base) - bases + 1) % 4];
      by_first_seq[static_cast<size_t>(lo)].push_back({s, lo, lo + size, base});
    }
  }

  std::FILE* out = std::fopen(o.out.c_str(), "wb");
  if (!out) {
    std::perror(o.out.c_str());
    return 1;
  }
  std::vector<char> row(ancestor);
  std::vector<Mutation> live;
  std::vector<char> buffer;
  buffer.reserve(static_cast<size_t>(o.sites + o.sites / o.line + 64));
  for (long q = 0; q < o.n; ++q) {
    // Mutations whose block covers sequence q.
    for (const Mutation& m : by_first_seq[static_cast<size_t>(q)]) live.push_back(m);
    std::erase_if(live, [q](const Mutation& m) { return m.hi <= q; });
    row = ancestor;
    for (const Mutation& m : live) row[static_cast<size_t>(m.site)] = m.base;
    if (o.gap_rate > 0) {
      for (long s = 0; s < o.sites; ++s)
        if (unit(rng) < o.gap_rate) {
          const long run = 1 + static_cast<long>(rng() % 6);
          for (long k = s; k < s + run && k < o.sites; ++k) row[static_cast<size_t>(k)] = '-';
        }
    }
    buffer.clear();
    const std::string header = ">seq" + std::to_string(q + 1) + "\n";
    buffer.insert(buffer.end(), header.begin(), header.end());
    for (long s = 0; s < o.sites; s += o.line) {
      const long end = std::min(o.sites, s + o.line);
      buffer.insert(buffer.end(), row.begin() + s, row.begin() + end);
      buffer.push_back('\n');
    }
    if (std::fwrite(buffer.data(), 1, buffer.size(), out) != buffer.size()) {
      std::perror(o.out.c_str());
      return 1;
    }
  }
  return std::fclose(out) == 0 ? 0 : 1;
}
