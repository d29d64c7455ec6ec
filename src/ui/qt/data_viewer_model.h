#pragma once
// The table model of the data viewer: one row per included sequence, then the row of site
// classes and, when a coding region is assigned, the row of codon positions; one column per
// site. Cells are made on demand from the alignment (shared with the data file, not copied) and
// the per-site table, so a view of millions of cells stores nothing per cell.

#include <QAbstractTableModel>

#include <string>
#include <vector>

#include "core/active_data.h"
#include "shell/viewer_cell.h"
#include "shell/viewer_site_table.h"

namespace ovelt {

class DataViewerModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  // Takes what it shows from `ad` now; later changes of `ad` do not reach the model.
  explicit DataViewerModel(const ActiveData& ad, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;

  void SetOptions(const ViewerDisplayOptions& options);
  void SetHighlight(ViewerHighlight choice);
  [[nodiscard]] const ViewerDisplayOptions& Options() const { return options_; }
  [[nodiscard]] ViewerHighlight Highlight() const { return highlight_; }
  [[nodiscard]] const ViewerSiteTable& Sites() const { return table_; }

  // Model rows of the two rows under the sequences; -1 for the codon row when there is none.
  [[nodiscard]] int ClassRow() const { return seqs_; }
  [[nodiscard]] int CodonRow() const { return has_codon_row_ ? seqs_ + 1 : -1; }
  [[nodiscard]] int Sequences() const { return seqs_; }

  // Whether the model still shows the included layer of `ad` (same cells, classes and coding).
  [[nodiscard]] bool Shows(const ActiveData& ad) const;

  // Short marks of the class row, one per site class 0..5.
  [[nodiscard]] static QString ClassMark(int16_t site_class);

 private:
  void EverythingChanged();

  SeqMatrix matrix_;
  std::vector<std::string> names_;
  ViewerSiteTable table_;
  int seqs_ = 0;
  int sites_ = 0;
  bool has_codon_row_ = false;
  int16_t genetic_code_ = 0;
  ViewerDisplayOptions options_;
  ViewerHighlight highlight_ = ViewerHighlight::kVariable;
};

}  // namespace ovelt
