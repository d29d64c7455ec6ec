#pragma once
// The tables an analysis leaves in the output windows: a grid is a list of rows of cell texts,
// already formatted by the analysis.

#include <string>
#include <vector>

#include "output/data_table.h"

namespace ovelt {

struct OutputGrid {
  std::vector<std::string> ColumnTitles;        // the fixed top row of the window
  std::vector<std::vector<std::string>> Rows;   // data rows, top to bottom
  // The same rows for scripts (--grid): values as computed, columns named as in the JSON.
  DataTable Data;

  [[nodiscard]] bool Empty() const { return ColumnTitles.empty() && Rows.empty(); }
  void Clear() {
    ColumnTitles.clear();
    Rows.clear();
    Data.Clear();
  }
};

// One pair of populations of the gene-flow table (written in saved and session files only).
struct GeneFlowRow {
  std::string Population1;
  std::string Population2;
  std::vector<std::string> Values;  // Hs, Ks, Kxy, Gst, ... as the analysis formatted them
};

struct GeneFlowTable {
  // The long head with DeltaSt, Nst, Dxy and Da when the measures on sequences are in the table.
  bool WithSequenceMeasures = true;
  std::vector<GeneFlowRow> Rows;

  void Clear() { Rows.clear(); }
};

}  // namespace ovelt
