#include "ui/qt/viewer_cell_delegate.h"

#include <QBrush>
#include <QPainter>

namespace ovelt {

void ViewerCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  const bool selected = (option.state & QStyle::State_Selected) != 0;
  if (selected) {
    painter->fillRect(option.rect, option.palette.highlight());
  } else if (const QVariant brush = index.data(Qt::BackgroundRole); brush.canConvert<QBrush>()) {
    painter->fillRect(option.rect, brush.value<QBrush>());
  }
  const QString text = index.data(Qt::DisplayRole).toString();
  if (text.isEmpty()) return;
  painter->setPen(selected ? option.palette.color(QPalette::HighlightedText)
                           : option.palette.color(QPalette::Text));
  painter->setFont(option.font);
  painter->drawText(option.rect, Qt::AlignCenter, text);
}

}  // namespace ovelt
