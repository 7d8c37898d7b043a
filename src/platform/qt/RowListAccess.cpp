#include "platform/qt/RowListAccess.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "platform/qt/Language.h"
#include "platform/qt/RowList.h"

namespace tarnwick {
namespace {

/// A row as an entry of a list. It goes by its place, so it outlives the rows being made anew.
class RowAccess final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  RowAccess(RowList* list, int place) : list_(list), place_(place) {}

  [[nodiscard]] bool isValid() const override { return Row() != nullptr; }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return list_ ? QAccessible::queryAccessibleInterface(list_) : nullptr;
  }
  [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }

  [[nodiscard]] QString text(QAccessible::Text which) const override {
    const InfoRow* row = Row();
    if (!row || which != QAccessible::Name) return {};
    return (Translated(row->Caption) + Translated(row->Value)).simplified();
  }
  void setText(QAccessible::Text, const QString&) override {}

  [[nodiscard]] QRect rect() const override {
    const InfoRow* row = Row();
    if (!row) return {};
    const QRect box = QRectF(QPointF(row->Box.Left, row->Box.Top), QPointF(row->Box.Right, row->Box.Bottom))
                          .toAlignedRect();
    return {list_->mapToGlobal(box.topLeft()), box.size()};
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    const InfoRow* row = Row();
    if (!row) return state;
    const bool isOut = list_->Highlighted() == row;
    state.focusable = state.selectable = state.readOnly = true;
    state.selected = isOut;
    state.focused = isOut && list_->hasFocus();
    state.invisible = !list_->isVisible();
    state.offscreen = !list_->visibleRegion().intersects(
        QRect(0, static_cast<int>(row->Box.Top), list_->width(), static_cast<int>(RowHeight)));
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  [[nodiscard]] QStringList actionNames() const override {
    const InfoRow* row = Row();
    return row && list_->Opens(*row) ? QStringList{pressAction()} : QStringList{};
  }
  void doAction(const QString& action) override {
    const InfoRow* row = Row();
    if (row && action == pressAction()) list_->Press(*row);
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

  [[nodiscard]] int Place() const { return place_; }

 private:
  [[nodiscard]] const InfoRow* Row() const {
    const bool exists = list_ && place_ < static_cast<int>(list_->Rows().size());
    return exists ? &list_->Rows()[static_cast<std::size_t>(place_)] : nullptr;
  }

  QPointer<RowList> list_;
  int place_;
};

class RowListAccess final : public QAccessibleWidget {
 public:
  explicit RowListAccess(RowList* list) : QAccessibleWidget(list, QAccessible::List) {}

  [[nodiscard]] int childCount() const override { return static_cast<int>(List()->Rows().size()); }

  [[nodiscard]] QAccessibleInterface* child(int place) const override {
    if (place < 0 || place >= childCount()) return nullptr;
    auto found = known_.find(place);
    if (found == known_.end())
      found =
          known_.emplace(place, QAccessible::registerAccessibleInterface(new RowAccess(List(), place))).first;
    return QAccessible::accessibleInterface(found->second);
  }

  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
  }

  [[nodiscard]] int indexOfChild(const QAccessibleInterface* row) const override {
    const auto* known = dynamic_cast<const RowAccess*>(row);
    return known ? known->Place() : -1;
  }

  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    const InfoRow* row = List()->hasFocus() ? List()->Highlighted() : nullptr;
    return row ? child(row->Row - 1) : nullptr;
  }

 protected:
  ~RowListAccess() override {
    for (const auto& [place, id] : known_) QAccessible::deleteAccessibleInterface(id);
  }

 private:
  [[nodiscard]] RowList* List() const { return static_cast<RowList*>(widget()); }

  mutable std::map<int, QAccessible::Id> known_;  // made when somebody asks
};

QAccessibleInterface* AccessTo(const QString&, QObject* object) {
  auto* list = qobject_cast<RowList*>(object);
  return list ? new RowListAccess(list) : nullptr;
}

}  // namespace

void TeachRowLists() { QAccessible::installFactory(AccessTo); }

void ForgetRows(RowList& list) {
  if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(&list)) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
  }
}

}  // namespace tarnwick
