#pragma once
// The data viewer (`mulpop1`): the included sequences in a scrolling grid with a row of site
// classes (and of codon positions when coding regions are assigned) under them, and a combo
// that chooses which sites are highlighted. It reads the data and changes nothing.

#include <QWidget>

#include <memory>

#include "core/active_data.h"
#include "ui/qt/data_viewer_model.h"

class QComboBox;
class QLabel;
class QTableView;

namespace ovelt {

class DataViewerWindow : public QWidget {
  Q_OBJECT
 public:
  DataViewerWindow(const ActiveData& ad, const ViewerDisplayOptions& options,
                   QWidget* parent = nullptr);

  // Shows `ad` again (after a change of the included sequences or coding regions), keeping
  // the highlight choice, the options and the scroll position as far as they still apply.
  void Reload(const ActiveData& ad);
  void SetOptions(const ViewerDisplayOptions& options);

  [[nodiscard]] DataViewerModel* Model() const { return model_.get(); }
  [[nodiscard]] QTableView* View() const { return view_; }
  [[nodiscard]] QComboBox* HighlightCombo() const { return combo_; }

 private:
  void Install(std::unique_ptr<DataViewerModel> model);
  void ShowPosition(const QModelIndex& index);

  std::unique_ptr<DataViewerModel> model_;
  QTableView* view_;
  QComboBox* combo_;
  QLabel* position_;
};

}  // namespace ovelt
