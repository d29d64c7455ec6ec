#pragma once
// Paints the cells of the data viewer: a background brush when the model gives one, and one
// centred character. The standard delegate asks the style for every cell, which costs far more
// than the cell itself; a view of a large alignment repaints thousands of cells per scroll.

#include <QStyledItemDelegate>

namespace ovelt {

class ViewerCellDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace ovelt
