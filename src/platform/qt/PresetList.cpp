#include "platform/qt/PresetList.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/qt/Language.h"

namespace tarnwick {
namespace {

constexpr int RowsShown = 11;
constexpr int LeastWidth = 18;  // figures
constexpr int RowAir = 4;       // so that a row is easily hit

/// Draws a heading as a heading, although it is no entry that can be chosen.
class EntryPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize text = QStyledItemDelegate::sizeHint(option, index);
    return {text.width(), option.fontMetrics.height() + RowAir};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.flags() & Qt::ItemIsEnabled) return;
    option->state |= QStyle::State_Enabled;
    option->font.setBold(true);
  }
};

}  // namespace

PresetList::PresetList(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new EntryPainter(this));
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PresetList::AddEntry(const std::string& text) { addItem(Translated(text)); }

void PresetList::AddHeading(const std::string& text) {
  AddEntry(text);
  item(count() - 1)->setFlags(Qt::NoItemFlags);
}

QSize PresetList::sizeHint() const {
  const QFontMetrics metrics(font());
  const int text = std::max(sizeHintForColumn(0), LeastWidth * metrics.horizontalAdvance('0'));
  const int row = std::max(sizeHintForRow(0), metrics.height());
  return {text + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
          RowsShown * row + 2 * frameWidth()};
}

QModelIndex PresetList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  QModelIndex index = QListWidget::moveCursor(action, modifiers);
  while (index.isValid() && !(index.flags() & Qt::ItemIsEnabled)) index = index.siblingAtRow(index.row() + 1);
  return index;
}

void PresetList::keyPressEvent(QKeyEvent* event) {
  const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (isArrow && currentItem() && selectedItems().isEmpty())
    setCurrentItem(currentItem(), QItemSelectionModel::ClearAndSelect);
  else
    QListWidget::keyPressEvent(event);
}

}  // namespace tarnwick
