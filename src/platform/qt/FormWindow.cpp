#include "platform/qt/FormWindow.h"

#include <QComboBox>
#include <QEvent>
#include <QKeySequence>
#include <QLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <QVariant>

#include "platform/qt/BoxArea.h"
#include "platform/qt/CenterForm.h"
#include "platform/qt/Gaps.h"

namespace tarnwick {
namespace {

constexpr const char* TopicProperty = "helpTopic";

/// A wheel that turns while it passes over a list chooses nothing from it.
class WheelPassedOn final : public QObject {
 public:
  explicit WheelPassedOn(QComboBox* list) : QObject(list), list_(list) {
    list->setFocusPolicy(Qt::StrongFocus);
    list->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || list_->hasFocus()) return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
  }

 private:
  QComboBox* list_;
};

}  // namespace

FormWindow::FormWindow(const char* name, const QString& title, int topic, HelpViewer& help, QWidget* parent)
    : QDialog(parent), topic_(topic), help_(help) {
  setObjectName(name);
  setWindowTitle(title);
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, &FormWindow::ShowHelp);
  CenterForm(*this);
}

void FormWindow::SetTopic(QWidget* control, int topic) { control->setProperty(TopicProperty, topic); }

void FormWindow::ShowHelp() {
  const QVariant topic = focusWidget() ? focusWidget()->property(TopicProperty) : QVariant();
  help_.ShowTopic(topic.isValid() ? topic.toInt() : topic_);
}

void FormWindow::Arrange(QLayout* boxes, QLayout* foot) {
  auto* page = new QWidget;
  page->setLayout(boxes);
  boxes->setContentsMargins(Margin, Margin, Margin, 0);
  foot->setContentsMargins(Margin, 0, Margin, Margin);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Margin);
  area_ = new BoxArea(page);
  column->addWidget(area_, 1);
  column->addLayout(foot);
  for (QComboBox* list : findChildren<QComboBox*>()) new WheelPassedOn(list);
}

/// Lays the rows that are too wide out anew. What is not seen yet does not ask for its new size by itself,
/// and an area that scrolls does not follow what is in it.
void FormWindow::StackRows(int room) {
  constexpr int Around = 4 * Margin;  // of the window, and of a frame in it
  for (QBoxLayout* row : rows_) {
    if (row->sizeHint().width() <= room - Around) continue;
    row->setDirection(QBoxLayout::TopToBottom);
    row->parentWidget()->updateGeometry();
  }
  area_->updateGeometry();
}

/// The toolkit would open a window on two thirds of the screen at most, however many boxes it has.
void FormWindow::FitScreen() {
  const QSize room = LayOutForScreen(*this);
  if (area_ && sizeHint().width() > room.width()) StackRows(room.width());
  ResizeWithin(*this, room);
}

void FormWindow::setVisible(bool visible) {
  if (visible && !testAttribute(Qt::WA_Resized)) FitScreen();
  QDialog::setVisible(visible);
}

}  // namespace tarnwick
