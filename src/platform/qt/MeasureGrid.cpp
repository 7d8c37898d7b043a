#include "platform/qt/MeasureGrid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <utility>

#include "platform/qt/MeasureBox.h"

namespace tarnwick {
namespace {

constexpr int RowGap = 3;
constexpr int CaptionGap = 8;  // between a caption and its box
constexpr int GroupGap = 12;
constexpr int CaptionColumn = 0, BoxColumn = 1;

/// A caption that ends at its right edge; a blank at its end stands beyond that.
class Caption : public QLabel {
 public:
  explicit Caption(const QString& text) : QLabel(text) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const int beyond = text().endsWith(' ') ? fontMetrics().horizontalAdvance(' ') : 0;
    style()->drawItemText(&painter, rect().adjusted(0, 0, beyond, 0), static_cast<int>(alignment()),
                          palette(), isEnabled(), text(), foregroundRole());
  }
};

/// A caption that is pressed like its box.
class BoxCaption final : public Caption {
 public:
  BoxCaption(const QString& text, MeasureBox* box) : Caption(text), box_(box) {
    setCursor(Qt::PointingHandCursor);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    held_ = event->button() == Qt::LeftButton;
    if (held_) box_->setFocus(Qt::MouseFocusReason);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  /// Answered only now that the button is up: a dialog would take the release for its own.
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton || !std::exchange(held_, false)) return;
    if (rect().contains(event->position().toPoint())) emit box_->Pressed();
  }

 private:
  MeasureBox* box_;
  bool held_ = false;
};

/// Hands Enter on to the window of a box.
class EnterPassedOn final : public QObject {
 public:
  explicit EnterPassedOn(MeasureBox* box) : QObject(box) { box->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        event->ignore();
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

MeasureGrid::MeasureGrid(QWidget* frame) : QGridLayout(frame) {
  setHorizontalSpacing(CaptionGap);
  setVerticalSpacing(RowGap);
  setColumnStretch(BoxColumn, 1);
}

MeasureBox* MeasureGrid::AddBox(const QString& name, const QString& caption, const QString& spoken,
                                Press press) {
  auto* box = new MeasureBox;
  box->setObjectName(name);
  box->setAccessibleName(spoken);
  box->SetOpens(press != Press::Result);
  if (press == Press::Result) new EnterPassedOn(box);

  QLabel* label = press == Press::BoxAndCaption ? new BoxCaption(caption, box) : new Caption(caption);
  label->setObjectName("lbl" + name.mid(3));
  const int row = rowCount();
  addWidget(label, row, CaptionColumn);
  addWidget(box, row, BoxColumn);
  return box;
}

void MeasureGrid::AddGap() { setRowMinimumHeight(rowCount(), GroupGap); }

}  // namespace tarnwick
