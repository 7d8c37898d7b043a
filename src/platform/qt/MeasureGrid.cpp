#include "platform/qt/MeasureGrid.h"

#include <QKeyEvent>

#include "platform/qt/Caption.h"
#include "platform/qt/MeasureBox.h"

namespace tarnwick {
namespace {

constexpr int RowGap = 3;
constexpr int CaptionGap = 8;  // between a caption and its box
constexpr int GroupGap = 12;
constexpr int CaptionColumn = 0, BoxColumn = 1;

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
