#include "platform/qt/BoxArea.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

namespace tarnwick {

BoxArea::BoxArea(QWidget* boxes) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidget(boxes);
  setWidgetResizable(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  verticalScrollBar()->setAccessibleName(QScrollArea::tr("Move the boxes"));
  horizontalScrollBar()->setAccessibleName(QScrollArea::tr("Move the boxes sideways"));
  for (QWidget* ground : {viewport(), boxes}) ground->setAutoFillBackground(false);  // what is below shows
}

QSize BoxArea::sizeHint() const { return widget()->sizeHint(); }

QSize LayOutForScreen(QDialog& dialog) {
  for (QWidget* part : dialog.findChildren<QWidget*>()) part->ensurePolished();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const int titleBar = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &dialog);
  return dialog.screen()->availableSize() - QSize(0, titleBar);
}

void ResizeWithin(QDialog& dialog, QSize room) {
  QSize wanted = dialog.sizeHint();
  if (wanted.height() > room.height()) {
    const auto* area = dialog.findChild<QScrollArea*>();
    if (area) wanted.rwidth() += area->verticalScrollBar()->sizeHint().width();
  }
  dialog.resize(wanted.boundedTo(room));
}

}  // namespace tarnwick
