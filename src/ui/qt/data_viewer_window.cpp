#include "ui/qt/data_viewer_window.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include "shell/viewer_texts.h"
#include "ui/qt/viewer_cell_delegate.h"

namespace ovelt {

namespace {

QString LegendText() {
  QString legend;
  for (int16_t c = 0; c <= 5; ++c) {
    const QString mark = DataViewerModel::ClassMark(c);
    if (!legend.isEmpty()) legend += "   ";
    legend += QString("[%1] %2")
                  .arg(mark.isEmpty() ? QString(" ") : mark,
                       QString::fromStdString(ViewerSiteClassText(c)));
  }
  return legend;
}

}  // namespace

DataViewerWindow::DataViewerWindow(const ActiveData& ad, const ViewerDisplayOptions& options,
                                   QWidget* parent)
    : QWidget(parent) {
  setWindowTitle(QString::fromStdString(kViewerTitlePrefix + ad.FileName));
  combo_ = new QComboBox;
  for (int i = 0; i < kViewerHighlightCount; ++i)
    combo_->addItem(QString::fromStdString(ViewerHighlightText(static_cast<ViewerHighlight>(i))));
  combo_->setCurrentIndex(static_cast<int>(ViewerHighlight::kVariable));

  view_ = new QTableView;
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  view_->setFont(fixed);
  view_->setShowGrid(false);
  view_->setSelectionMode(QAbstractItemView::SingleSelection);
  view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_->setItemDelegate(new ViewerCellDelegate(view_));
  // Uniform widths and heights: the headers never measure the cells.
  const QFontMetrics metrics(fixed);
  QHeaderView* across = view_->horizontalHeader();
  across->setMinimumSectionSize(1);
  across->setDefaultSectionSize(metrics.horizontalAdvance('W') + 6);
  across->setSectionResizeMode(QHeaderView::Fixed);
  across->setFont(fixed);
  QHeaderView* down = view_->verticalHeader();
  down->setDefaultSectionSize(metrics.height() + 4);
  down->setSectionResizeMode(QHeaderView::Fixed);
  down->setFont(fixed);

  position_ = new QLabel;
  auto* legend = new QLabel(LegendText());
  legend->setWordWrap(true);

  auto* top = new QHBoxLayout;
  top->addWidget(new QLabel("Highlight:"));
  top->addWidget(combo_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(view_, 1);
  layout->addWidget(position_);
  layout->addWidget(legend);

  Install(std::make_unique<DataViewerModel>(ad));
  model_->SetOptions(options);
  connect(combo_, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (i >= 0) model_->SetHighlight(static_cast<ViewerHighlight>(i));
  });
  setFocusProxy(view_);
}

void DataViewerWindow::Install(std::unique_ptr<DataViewerModel> model) {
  QItemSelectionModel* old_selection = view_->selectionModel();
  view_->setModel(model.get());
  delete old_selection;
  model_ = std::move(model);
  model_->SetHighlight(static_cast<ViewerHighlight>(std::max(0, combo_->currentIndex())));
  // The names column is as wide as the longest name, measured once.
  int widest = view_->verticalHeader()->fontMetrics().horizontalAdvance("Codon position");
  for (int row = 0; row < model_->Sequences(); ++row)
    widest = std::max(widest, view_->verticalHeader()->fontMetrics().horizontalAdvance(
                                  model_->headerData(row, Qt::Vertical).toString()));
  view_->verticalHeader()->setFixedWidth(widest + 12);
  connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) { ShowPosition(current); });
  ShowPosition(QModelIndex());
}

void DataViewerWindow::Reload(const ActiveData& ad) {
  if (model_ && model_->Shows(ad)) return;
  const ViewerDisplayOptions options = model_ ? model_->Options() : ViewerDisplayOptions{};
  setWindowTitle(QString::fromStdString(kViewerTitlePrefix + ad.FileName));
  Install(std::make_unique<DataViewerModel>(ad));
  model_->SetOptions(options);
}

void DataViewerWindow::SetOptions(const ViewerDisplayOptions& options) {
  model_->SetOptions(options);
}

void DataViewerWindow::ShowPosition(const QModelIndex& index) {
  if (!index.isValid()) {
    position_->setText(QString("%1 sequences, %2 sites")
                           .arg(model_->Sequences())
                           .arg(model_->columnCount()));
    return;
  }
  const int32_t site = index.column() + 1;
  const ViewerSiteTable& t = model_->Sites();
  QString text = QString("Site %1: %2")
                     .arg(site)
                     .arg(QString::fromStdString(
                         ViewerSiteClassText(t.SiteClass[static_cast<size_t>(site)])));
  if (model_->CodonRow() >= 0)
    text += QString("; %1").arg(QString::fromStdString(ViewerCodonPositionText(
        t.CodingAssigned, t.CodonPosition[static_cast<size_t>(site)])));
  if (index.row() < model_->Sequences())
    text = model_->headerData(index.row(), Qt::Vertical).toString() + "   " + text;
  position_->setText(text);
}

}  // namespace ovelt
