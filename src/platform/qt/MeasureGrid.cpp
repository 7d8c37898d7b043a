#include "platform/qt/MeasureGrid.h"

#include "platform/qt/Caption.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/MeasureBox.h"

namespace tarnwick {
namespace {

constexpr int CaptionColumn = 0, BoxColumn = 1;

}  // namespace

MeasureGrid::MeasureGrid(QWidget* frame) : QGridLayout(frame) {
  setHorizontalSpacing(Gap);
  setVerticalSpacing(RowGap);
  setColumnStretch(BoxColumn, 1);
}

MeasureBox* MeasureGrid::AddBox(const QString& name, const QString& caption, const QString& spoken,
                                Press press) {
  auto* box = new MeasureBox;
  box->setObjectName(name);
  box->setAccessibleName(spoken);
  box->SetOpens(press != Press::Result);
  if (press == Press::Result) box->PassEnterOn();

  QLabel* label = press == Press::BoxAndCaption ? new BoxCaption(caption, box) : new Caption(caption);
  label->setObjectName("lbl" + name.mid(3));
  const int row = rowCount();
  addWidget(label, row, CaptionColumn);
  addWidget(box, row, BoxColumn);
  return box;
}

void MeasureGrid::AddGap() { setRowMinimumHeight(rowCount(), Margin); }

}  // namespace tarnwick
