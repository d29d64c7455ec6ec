#include "ui/qt/data_viewer_model.h"

#include <QBrush>
#include <QColor>

#include <algorithm>

#include "core/text_case.h"

namespace ovelt {

namespace {

const QColor kHighlightColour(255, 236, 140);
const QColor kClassColours[6] = {QColor(235, 235, 235), QColor(190, 225, 255),
                                 QColor(140, 200, 255), QColor(255, 200, 150),
                                 QColor(255, 160, 160), QColor(200, 200, 200)};

}  // namespace

DataViewerModel::DataViewerModel(const ActiveData& ad, QObject* parent)
    : QAbstractTableModel(parent),
      matrix_(ad.IncMatrix),
      table_(BuildViewerSiteTable(ad)),
      seqs_(std::min(ad.NumSeqs, ad.IncMatrix.seqs())),
      sites_(table_.Sites()),
      has_codon_row_(ad.Format.CodingAssigned >= 1),
      genetic_code_(ad.Format.GeneticCodeIndex) {
  names_.reserve(static_cast<size_t>(seqs_));
  for (int i = 1; i <= seqs_; ++i)
    names_.push_back(static_cast<size_t>(i) < ad.IncNames.size()
                         ? TrimBlanks(ad.IncNames[static_cast<size_t>(i)])
                         : std::string());
}

bool DataViewerModel::Shows(const ActiveData& ad) const {
  if (!matrix_.shares_cells_with(ad.IncMatrix) && !(matrix_.empty() && ad.IncMatrix.empty()))
    return false;
  if (seqs_ != std::min(ad.NumSeqs, ad.IncMatrix.seqs())) return false;
  if (table_.CodingAssigned != ad.Format.CodingAssigned) return false;
  if (genetic_code_ != ad.Format.GeneticCodeIndex) return false;
  const auto same_prefix = [this](const auto& mine, const auto& theirs) {
    const size_t n = static_cast<size_t>(sites_) + 1;
    return theirs.size() >= n && std::equal(mine.begin(), mine.begin() + static_cast<long>(n),
                                            theirs.begin());
  };
  return same_prefix(table_.SiteClass, ad.SiteClass) &&
         same_prefix(table_.CodonPosition, ad.CodonPosition);
}

int DataViewerModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return seqs_ + 1 + (has_codon_row_ ? 1 : 0);
}

int DataViewerModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : sites_;
}

QString DataViewerModel::ClassMark(int16_t site_class) {
  switch (site_class) {
    case kMonomorphic: return QString();
    case kSingletonSite: return "s";
    case kInformativeSite: return "P";
    case kThreeVariants: return "3";
    case kFourVariants: return "4";
    case kGapOrMissing: return "-";
    default: return QString();
  }
}

QVariant DataViewerModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row();
  const int32_t site = index.column() + 1;
  if (site < 1 || site > sites_) return {};
  const int16_t site_class = table_.SiteClass[static_cast<size_t>(site)];
  if (row < seqs_) {
    const int32_t seq = row + 1;
    if (role == Qt::DisplayRole) {
      const char cell = matrix_.at(site, seq);
      return QString(QChar(ViewerCellText(cell, matrix_.at(site, 1), seq, site_class, options_)));
    }
    if (role == Qt::BackgroundRole && ViewerHighlights(table_, highlight_, site))
      return QBrush(kHighlightColour);
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignCenter);
    return {};
  }
  if (row == ClassRow()) {
    if (role == Qt::DisplayRole) return ClassMark(site_class);
    if (role == Qt::ToolTipRole) return QString::fromStdString(ViewerSiteClassText(site_class));
    if (role == Qt::BackgroundRole && site_class >= 0 && site_class <= 5)
      return QBrush(kClassColours[site_class]);
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignCenter);
    return {};
  }
  if (row == CodonRow()) {
    const int16_t position = table_.CodonPosition[static_cast<size_t>(site)];
    if (role == Qt::DisplayRole) return position > 0 ? QString::number(position) : QString();
    if (role == Qt::ToolTipRole)
      return QString::fromStdString(ViewerCodonPositionText(table_.CodingAssigned, position));
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignCenter);
  }
  return {};
}

QVariant DataViewerModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal) {
    // Columns are narrow: the last digit of the site number, the whole number on hover.
    if (role == Qt::DisplayRole) return QString::number((section + 1) % 10);
    if (role == Qt::ToolTipRole) return QString("Site %1").arg(section + 1);
    return {};
  }
  if (role != Qt::DisplayRole) return {};
  if (section < seqs_) return QString::fromStdString(names_[static_cast<size_t>(section)]);
  if (section == ClassRow()) return QString("Site class");
  if (section == CodonRow()) return QString("Codon position");
  return {};
}

void DataViewerModel::SetOptions(const ViewerDisplayOptions& options) {
  options_ = options;
  EverythingChanged();
}

void DataViewerModel::SetHighlight(ViewerHighlight choice) {
  highlight_ = choice;
  EverythingChanged();
}

void DataViewerModel::EverythingChanged() {
  if (rowCount() == 0 || columnCount() == 0) return;
  // Views repaint only the cells they show.
  emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

}  // namespace ovelt
