#include "platform/qt/ColourSwatch.h"

#include <QPainter>
#include <QString>

#include "platform/qt/QtCanvas.h"

namespace tarnwick {
namespace {

constexpr int FocusRoom = 3;  // around the colour, for the ring of the focus
constexpr qreal Corner = 3;

/// Black or white, whichever is read more easily on `colour`.
QColor InkOn(Colour colour) {
  const int brightness = (299 * colour.Red() + 587 * colour.Green() + 114 * colour.Blue()) / 1000;
  return brightness < 128 ? Qt::white : Qt::black;
}

}  // namespace

ColourSwatch::ColourSwatch(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAttribute(Qt::WA_Hover);
  ShowColour(Black);
}

void ColourSwatch::ShowColour(Colour colour) {
  colour_ = colour;
  const QString figures =
      tr("Red %1, green %2, blue %3").arg(colour.Red()).arg(colour.Green()).arg(colour.Blue());
  setToolTip(figures);
  setAccessibleDescription(figures);
  update();
}

QSize ColourSwatch::sizeHint() const {
  const int high = fontMetrics().height() + 4 * FocusRoom;
  return {2 * high, high};
}

void ColourSwatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF colour = QRectF(rect()).adjusted(FocusRoom, FocusRoom, -FocusRoom, -FocusRoom);
  // Half seen, so that a sample as dark or as light as the window still has an edge.
  QColor edge = palette().color(QPalette::WindowText);
  edge.setAlphaF(underMouse() || isDown() ? 0.9F : 0.45F);
  painter.setPen(QPen(edge, 1));
  painter.setBrush(ToQt(colour_));
  painter.drawRoundedRect(colour.adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Corner + 2, Corner + 2);
  }
  painter.setPen(InkOn(colour_));
  painter.drawText(colour, Qt::AlignCenter, text());
}

}  // namespace tarnwick
