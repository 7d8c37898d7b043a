#include "platform/qt/FormWindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QKeySequence>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

#include "platform/qt/CenterForm.h"

namespace tarnwick {
namespace {

constexpr const char* TopicProperty = "helpTopic";

/// Asks for the whole of what it shows, and does with less.
class BoxArea final : public QScrollArea {
 public:
  explicit BoxArea(QWidget* boxes) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(boxes);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  }
  [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
};

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
  column->addWidget(new BoxArea(page), 1);
  column->addLayout(foot);
  for (QComboBox* list : findChildren<QComboBox*>()) new WheelPassedOn(list);
}

/// The toolkit would open a window on two thirds of the screen at most, however many boxes it has.
void FormWindow::setVisible(bool visible) {
  if (visible && !testAttribute(Qt::WA_Resized)) {
    for (QWidget* part : findChildren<QWidget*>()) part->ensurePolished();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize(sizeHint().boundedTo(screen()->availableSize() - QSize(0, titleBar)));
  }
  QDialog::setVisible(visible);
}

}  // namespace tarnwick
