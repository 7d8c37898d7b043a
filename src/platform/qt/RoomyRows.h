#pragma once

#include <QStyledItemDelegate>

namespace tarnwick {

/// Rows of a list with a little room about the text.
class RoomyRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).grownBy({0, 0, 0, option.fontMetrics.height() / 2});
  }
};

}  // namespace tarnwick
