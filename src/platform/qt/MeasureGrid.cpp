#include "platform/qt/MeasureGrid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <utility>

#include "platform/qt/MeasureBox.h"

namespace tarnwick {
namespace {

constexpr int RowGap = 3;
constexpr int CaptionGap = 8;  // between a caption and its box
constexpr int GroupGap = 12;
constexpr int CaptionColumn = 0, BoxColumn = 1;

/// A caption that is pressed like its box.
class BoxCaption final : public QLabel {
 public:
  BoxCaption(const QString& text, MeasureBox* box) : QLabel(text), box_(box) {
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

  auto* label = press == Press::BoxAndCaption ? new BoxCaption(caption, box) : new QLabel(caption);
  label->setObjectName("lbl" + name.mid(3));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  if (caption.endsWith(' ')) {  // the blank is the caption's own, but its colon stands below the others
    label->setContentsMargins(0, 0, -label->fontMetrics().horizontalAdvance(' '), 0);
  }
  const int row = rowCount();
  addWidget(label, row, CaptionColumn);
  addWidget(box, row, BoxColumn);
  return box;
}

void MeasureGrid::AddGap() { setRowMinimumHeight(rowCount(), GroupGap); }

}  // namespace tarnwick
