// Times the data viewer on a large alignment held in memory: opening the window, the first
// paint, and jumps to random places of the grid, each followed by a paint of what is visible.
// The viewer makes its cells on demand, so these times should not grow with the alignment.
//
//   viewer_bench [sequences] [sites] [jumps]     (defaults 2000, 1000000, 50)
//
// Runs on any Qt platform; QT_QPA_PLATFORM=offscreen needs no display.

#include <QApplication>
#include <QTableView>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "ui/qt/data_viewer_options.h"
#include "ui/qt/data_viewer_window.h"

namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Each sequence is the ancestor with one site changed, so every site class but two is
// monomorphic; the viewer's work per cell does not depend on the classes.
ovelt::ActiveData MakeAlignment(int32_t seqs, int32_t sites) {
  std::mt19937 rng(11);
  const std::array<char, 4> bases{'A', 'C', 'G', 'T'};
  std::vector<char> ancestor(static_cast<size_t>(sites));
  for (char& c : ancestor) c = bases[rng() % 4];
  ovelt::ActiveData ad;
  ad.FileName = "generated.fas";
  ad.NumSites = sites;
  ad.NumSeqs = ad.TotalSeqs = seqs;
  ad.RawMatrix.set_sites(sites);
  ad.RawMatrix.reserve_sequences(seqs);
  ad.RawNames.assign(1, "");
  ad.SiteClass.assign(static_cast<size_t>(sites) + 1, ovelt::kMonomorphic);
  std::vector<char> row;
  for (int32_t q = 1; q <= seqs; ++q) {
    row = ancestor;
    const auto at = static_cast<size_t>(rng() % static_cast<uint32_t>(sites));
    row[at] = row[at] == 'A' ? 'C' : 'A';
    ad.SiteClass[at + 1] = ovelt::kSingletonSite;
    ad.RawMatrix.append_sequence(row.data());
    ad.RawNames.push_back(ovelt::FixedName("seq" + std::to_string(q)));
  }
  ad.IncMatrix = ad.RawMatrix;  // shares the cells
  ad.IncNames = ad.RawNames;
  ad.CodonPosition.assign(static_cast<size_t>(sites) + 1, 0);
  return ad;
}

long PeakResidentKb() {
  std::ifstream status("/proc/self/status");
  std::string key;
  long value = 0;
  while (status >> key) {
    if (key == "VmHWM:") {
      status >> value;
      return value;
    }
    status.ignore(1 << 12, '\n');
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const int32_t seqs = argc > 1 ? std::atoi(argv[1]) : 2000;
  const int32_t sites = argc > 2 ? std::atoi(argv[2]) : 1000000;
  const int jumps = argc > 3 ? std::atoi(argv[3]) : 50;

  auto start = Clock::now();
  const ovelt::ActiveData ad = MakeAlignment(seqs, sites);
  std::printf("alignment %d x %d made in %.0f ms (not the viewer's time)\n", seqs, sites,
              MillisecondsSince(start));

  start = Clock::now();
  ovelt::DataViewerWindow window(ad, ovelt::ViewerDisplayOptions{});
  window.resize(1200, 800);
  window.show();
  QApplication::processEvents();
  (void)window.View()->viewport()->grab();
  std::printf("open and first paint: %.1f ms\n", MillisecondsSince(start));

  std::mt19937 rng(3);
  std::vector<double> times;
  for (int i = 0; i < jumps; ++i) {
    const int row = static_cast<int>(rng() % static_cast<uint32_t>(seqs));
    const int column = static_cast<int>(rng() % static_cast<uint32_t>(sites));
    start = Clock::now();
    window.View()->scrollTo(window.Model()->index(row, column));
    QApplication::processEvents();
    (void)window.View()->viewport()->grab();
    times.push_back(MillisecondsSince(start));
  }
  std::sort(times.begin(), times.end());
  if (!times.empty()) {
    double sum = 0;
    for (const double t : times) sum += t;
    std::printf("jump and paint (%d jumps): mean %.2f ms, median %.2f ms, worst %.2f ms\n", jumps,
                sum / static_cast<double>(times.size()), times[times.size() / 2], times.back());
  }
  std::printf("peak resident memory: %.0f MB (the alignment itself: %.0f MB)\n",
              static_cast<double>(PeakResidentKb()) / 1024.0,
              static_cast<double>(seqs) * sites / 1048576.0);
  return 0;
}
